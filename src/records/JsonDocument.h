#pragma once

#include <memory>
#include <string>

namespace simdjson::dom {
class element;
}

namespace ombrivane {

/// One parsed text of JSON. What is read from it is valid as long as it lives.
class JsonDocument {
public:
    /// Parses and checks the whole of `bytes`. @throws DecodeError when they are no JSON (UTF-8, at most
    /// 1,024 levels).
    explicit JsonDocument(const std::string& bytes);
    ~JsonDocument();
    JsonDocument(const JsonDocument&) = delete;
    JsonDocument& operator=(const JsonDocument&) = delete;

    const simdjson::dom::element& root() const;

private:
    struct Parsed;
    std::unique_ptr<Parsed> parsed_;
};

} // namespace ombrivane
