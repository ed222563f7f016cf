// The JSON type of the sandbox: it keeps the order of keys, because an itinerary must come back in the order
// it left.
#pragma once

#include <nlohmann/json.hpp>

namespace ombrivane::sandbox {

using Json = nlohmann::ordered_json;

/// The text form of a value; bytes that are no UTF-8 become replacement characters instead of an exception.
inline std::string toText(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace ombrivane::sandbox
