#pragma once

#include "records/AnyFlight.h"

#include <string>

namespace ombrivane::bench {

/// The plain way from a search answer to its offers, which this component's is held against: parse the answer
/// into a tree of nlohmann's, write each element of `data` by itself, and decode its record from these bytes.
/// Sorted by total cost.
OneWayOffers doublePass(const std::string& answer);

} // namespace ombrivane::bench
