#pragma once

#include "records/AnyFlight.h"
#include "records/FlightAvailability.h"

namespace ombrivane {

/// One way: what its clients and screens work with.
struct OneWay {
    using Offer = FlightSearchOneWay;
    using Availability = OWFlightAvailability;
    using Summary = FlightsSummary;
    /// A flight of the other kind is a fault.
    static const Offer& offerOf(const AnyFlight& flight) { return flight.oneWay(); }
};

/// A journey with its return.
struct RoundTrip {
    using Offer = FlightSearchRoundTrip;
    using Availability = RTFlightAvailability;
    using Summary = RTFlightsSummary;
    /// A flight of the other kind is a fault.
    static const Offer& offerOf(const AnyFlight& flight) { return flight.roundTrip(); }
};

} // namespace ombrivane
