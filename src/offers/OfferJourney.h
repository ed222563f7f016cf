#pragma once

#include "records/FlightSearchOneWay.h"
#include "records/FlightSearchRoundTrip.h"

namespace ombrivane {

/// The journey by which an offer is sorted into airlines and times: the only one, or the one that goes out.
inline const FlightSummary& outbound(const FlightSearchOneWay& offer) { return offer.flightSummary; }
inline const RoundTripFlightSummary& outbound(const FlightSearchRoundTrip& offer) {
    return offer.flightDepartureSummary;
}

} // namespace ombrivane
