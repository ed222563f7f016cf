#pragma once

#include "base/Completion.h"
#include "records/AvailabilitySummary.h"
#include "records/EmergencyContact.h"
#include "records/FlightBooking.h"
#include "records/Passenger.h"

#include <optional>
#include <vector>

namespace ombrivane {

/// Sends the reservation.
class FlightBookingProvider {
public:
    /// The request goes out once. Without an availability its record cannot be encoded: the completion then
    /// hears of that, the request still goes out without a body, and the completion hears of its answer as
    /// well. So the completion must be one that may be called twice.
    void reserve(const std::vector<Passenger>& passengers,
                 const std::optional<AvailabilitySummary>& availabilitySummary,
                 const EmergencyContact& emergencyContact,
                 const Completion<std::optional<FlightBooking>>& completion) const;
};

} // namespace ombrivane
