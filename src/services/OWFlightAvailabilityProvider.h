#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"
#include "records/FlightAvailability.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Re-prices a one-way offer and opens a booking.
class OWFlightAvailabilityProvider {
public:
    /// @param itineraryType sent as it stands
    /// @param flight holds a `FlightSearchOneWay`, else it is a fault; its `rawData` is what is sent
    void fetchAvailability(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<std::optional<OWFlightAvailability>>& completion) const;
};

} // namespace ombrivane
