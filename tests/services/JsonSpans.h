#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace ombrivane {

/// Where one value stands in a JSON text, its key before it when it has one.
struct JsonSpan {
    std::size_t keyBegin; ///< the opening quote; where the value begins when it has no key
    std::size_t begin;
    std::size_t end;
    bool hasKey() const { return keyBegin != begin; }
};

/// Finds the values of a JSON text without white space, the elements of one array taken alike.
class JsonSpans {
public:
    explicit JsonSpans(const std::string& json) : json_(json) { value(0, 0, ""); }
    const std::vector<JsonSpan>& all() const { return spans_; }

private:
    std::size_t value(std::size_t keyBegin, std::size_t begin, const std::string& shape);
    std::size_t afterString(std::size_t at) const;

    const std::string& json_;
    std::set<std::string> shapes_;
    std::vector<JsonSpan> spans_;
};

} // namespace ombrivane
