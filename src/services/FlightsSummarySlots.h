#pragma once

#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"

#include <optional>

namespace ombrivane {

/// The journeys of the last availability of each kind, for the life of the process: written by the
/// availability clients on their network thread, read by the traveller forms. Never cleared. A domestic
/// special round writes neither. Any thread.
std::optional<FlightsSummary> owFlightsSummary();
std::optional<RTFlightsSummary> rtFlightsSummary();

void storeFlightsSummary(const FlightsSummary& summary);
void storeFlightsSummary(const RTFlightsSummary& summary);

} // namespace ombrivane
