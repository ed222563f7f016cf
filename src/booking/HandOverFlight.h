#pragma once

#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"
#include "state/CompletionCallback.h"

namespace ombrivane {

/// A journey as the host receives it: thirteen texts.
Dictionary handOverFlight(const FlightsSummary& summary);
/// The outbound journey of a round trip.
Dictionary handOverFlight(const RTFlightsSummary& summary);
Dictionary handOverReturnFlight(const RTFlightsSummary& summary);

} // namespace ombrivane
