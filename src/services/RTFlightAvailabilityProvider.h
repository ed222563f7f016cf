#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"
#include "records/FlightAvailability.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Re-prices a journey with its return and opens a booking.
class RTFlightAvailabilityProvider {
public:
    /// An international round trip: `flight` holds a `FlightSearchRoundTrip`, else it is a fault; its
    /// `rawData` is what is sent.
    void fetchAvailability(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<std::optional<RTFlightAvailability>>& completion) const;

    /// A domestic special round: both hold a `FlightSearchOneWay`, else it is a fault. The program's own
    /// serialisation of the two is sent, and the slot of the traveller forms stays untouched.
    void fetchAvailability(const std::string& itineraryType, const AnyFlight& flight,
                           const AnyFlight& returnFlight,
                           const Completion<std::optional<RTFlightAvailability>>& completion) const;
};

} // namespace ombrivane
