// The wallet's order, its confirmation, and the ticket that follows.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/service/Bookings.h"
#include "sandbox/wire/BodyFields.h"
#include "sandbox/world/Dates.h"

#include <string>

namespace ombrivane::sandbox {

/// Each takes the fields of its request and returns the `data` of its answer. All throw `Refusal`. An empty
/// `bookingReferenceID` stands for the last reservation, an empty `transactionID` for its order.
Json generateOrder(const BodyFields& fields, Bookings& bookings);
Json confirmOrder(const BodyFields& fields, Bookings& bookings, const std::string& otp);

/// Here every value must be that of the paid booking.
Json issueTicket(const BodyFields& fields, Bookings& bookings, Instant now);

/// `address` leads the link of the ticket.
Json downloadTicket(const BodyFields& fields, const Bookings& bookings, const std::string& address);

/// The ticket as a small HTML page.
std::string ticketPage(const std::string& ticketReference, const Bookings& bookings);

} // namespace ombrivane::sandbox
