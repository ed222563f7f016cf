#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace simdjson::dom {
class element;
}

namespace ombrivane {

/// One parsed answer with its own bytes, white space between tokens taken out. What is read from it is valid
/// as long as it lives; slices of its bytes can be held longer with `owner`.
class JsonDocument {
public:
    /// Parses and checks the whole of `bytes`. @throws DecodeError when they are no JSON (UTF-8, at most
    /// 1,024 levels).
    explicit JsonDocument(const std::string& bytes);
    ~JsonDocument();
    JsonDocument(const JsonDocument&) = delete;
    JsonDocument& operator=(const JsonDocument&) = delete;

    const simdjson::dom::element& root() const;

    /// The bytes of each element of the array under `key` of the top level, in their order.
    std::vector<std::string_view> elementBytes(std::string_view key) const;

    std::shared_ptr<const void> owner() const;

private:
    struct Parsed;
    std::unique_ptr<Parsed> parsed_;
};

} // namespace ombrivane
