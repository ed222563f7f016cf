#pragma once

#include "base/Completion.h"
#include "records/Trip.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Re-prices an offer and opens a booking.
template <class Trip> class FlightAvailabilityProvider {
public:
    using Availability = std::optional<typename Trip::Availability>;

    /// @param itineraryType sent as it stands
    /// @param flight holds an offer of the trip's kind, else it is a fault; its `rawData` is what is sent
    void fetchAvailability(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<Availability>& completion) const;
};

using OWFlightAvailabilityProvider = FlightAvailabilityProvider<OneWay>;

/// Re-prices a journey with its return, international or of two domestic offers.
class RTFlightAvailabilityProvider final : public FlightAvailabilityProvider<RoundTrip> {
public:
    using FlightAvailabilityProvider<RoundTrip>::fetchAvailability;

    /// A domestic special round: both hold a `FlightSearchOneWay`, else it is a fault. The program's own
    /// serialisation of the two is sent, and the slot of the traveller forms stays untouched.
    void fetchAvailability(const std::string& itineraryType, const AnyFlight& flight,
                           const AnyFlight& returnFlight, const Completion<Availability>& completion) const;
};

} // namespace ombrivane
