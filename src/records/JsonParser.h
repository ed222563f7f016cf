#pragma once

#include "records/DecodeRoom.h"

#include <memory>
#include <string>
#include <string_view>

namespace simdjson::dom {
class element;
}

namespace ombrivane {

/// Parses texts of JSON (UTF-8, at most 1,024 levels) one after the other.
///
/// A number that fits into no machine word, as 1e400, is JSON nevertheless: it is refused by whoever reads
/// it, whatever he wants to read, and nobody else minds it.
class JsonParser {
public:
    /// @param room pays for what the parser takes
    explicit JsonParser(DecodeRoom& room);
    ~JsonParser();
    JsonParser(const JsonParser&) = delete;
    JsonParser& operator=(const JsonParser&) = delete;

    /// The value, good until the next call. @param readable how many bytes may be read from the begin of
    /// `json` on, at least its own. @throws DecodeError when it is no JSON or too much of it
    simdjson::dom::element parse(std::string_view json, std::size_t readable);
    simdjson::dom::element parse(std::string_view json);

private:
    struct Parser;

    void reserve(std::size_t length);
    void maskHugeNumbers(std::size_t length);

    DecodeRoom& room_;
    std::size_t capacity_ = 0;
    std::unique_ptr<Parser> parser_;
    /// A text with the padding that the parser wants.
    std::string copy_;
};

} // namespace ombrivane
