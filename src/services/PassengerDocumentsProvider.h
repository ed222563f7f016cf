#pragma once

#include "base/Completion.h"
#include "platform/DocumentPicture.h"
#include "records/FlightBooking.h"
#include "records/Passenger.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// Uploads the pictures of the travel documents of a reservation.
class PassengerDocumentsProvider {
public:
    /// Walks the service's passengers by position: the i-th of the answer is the i-th of the request; those
    /// of whom nothing is known here are left out. A picture that cannot be written as PNG is an error. The
    /// pictures are written in the platform's background.
    void upload(const std::vector<Passenger>& passengers,
                const std::vector<std::optional<DocumentPicture>>& documents,
                const std::vector<FlightBookingPassenger>& bookedPassengers,
                const std::string& bookingReferenceID,
                const Completion<std::optional<FlightBooking>>& completion) const;
};

} // namespace ombrivane
