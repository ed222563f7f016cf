#pragma once

#include "base/Completion.h"
#include "records/FlightBooking.h"
#include "records/FlightTicketing.h"

#include <optional>

namespace ombrivane {

/// Turns a paid booking into a ticket.
class FlightTicketingProvider {
public:
    /// @param bookingSummary the answer of the confirmation; an absent one sends four empty texts
    void issueTicket(const std::optional<BookingSummary>& bookingSummary,
                     const Completion<std::optional<FlightTicketing>>& completion) const;
};

} // namespace ombrivane
