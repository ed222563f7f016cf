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
    /// Walks the service's passengers by position: the i-th of the answer is the i-th of the request. A local
    /// list that is shorter than the answer, and a picture that cannot be written as PNG, are faults. The
    /// body is built on the calling thread.
    void upload(const std::vector<Passenger>& passengers,
                const std::vector<std::optional<DocumentPicture>>& documents,
                const std::vector<FlightBookingPassenger>& bookedPassengers,
                const std::string& bookingReferenceID,
                const Completion<std::optional<FlightBooking>>& completion) const;
};

} // namespace ombrivane
