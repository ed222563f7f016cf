// An offer as the JSON tree that goes over the wire.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/world/Offers.h"

#include <chrono>
#include <string>

namespace ombrivane::sandbox {

/// `address` leads the links of logos.
Json offerJson(const Offer& offer, const std::string& address);

/// The tree without the keys that only this service knows and a client's records do not have. A client that
/// writes its own record back sends this.
nlohmann::json knownPart(const Json& tree);

/// "2h 5m", or false when there is no connection.
Json connectionJson(const std::optional<std::chrono::minutes>& connection);

} // namespace ombrivane::sandbox
