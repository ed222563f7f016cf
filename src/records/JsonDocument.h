#pragma once

#include "records/JsonParser.h"

#include <simdjson.h>

#include <string_view>

namespace ombrivane {

/// One parsed text of JSON. What is read from it is valid as long as it lives.
class JsonDocument {
public:
    /// Parses and checks the whole of `bytes`. @throws DecodeError when they are no JSON, as `JsonParser`
    /// says
    explicit JsonDocument(std::string_view bytes) : root_(parser_.parse(bytes)) {}

    const simdjson::dom::element& root() const { return root_; }

private:
    DecodeRoom room_;
    JsonParser parser_{room_};
    simdjson::dom::element root_;
};

} // namespace ombrivane
