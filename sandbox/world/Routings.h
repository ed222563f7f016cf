// The ways from one airport to another: who flies, and where one changes.
#pragma once

#include "sandbox/world/Airlines.h"
#include "sandbox/world/Airports.h"

#include <vector>

namespace ombrivane::sandbox {

struct Routing {
    std::vector<const Airport*> stops;    ///< origin, changes, destination
    std::vector<const Airline*> carriers; ///< one per leg

    [[nodiscard]] std::size_t legs() const { return carriers.size(); }
};

/// At least one way of one to three legs, the most direct first. Worked out once for each pair; safe from
/// every thread, and the result stays valid.
const std::vector<Routing>& routingsBetween(const Airport& from, const Airport& to);

} // namespace ombrivane::sandbox
