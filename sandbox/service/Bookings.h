// The bookings of the service, from the opened availability to the issued ticket. All in memory.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/service/Availability.h"
#include "sandbox/world/Dates.h"
#include "sandbox/world/Trip.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

/// On what terms the service prices an offer.
struct Terms {
    std::optional<int> farePercent; ///< by how much it costs more than was offered; none: as it comes
    /// How long the price is held: ten minutes as clients count them, and half a minute for the way.
    std::chrono::seconds holds{600 + 30};
};

struct Traveller {
    std::string id;   ///< the service's own, digits
    std::string type; ///< "ADT", "CHD" or "INF"
    std::string name;
    std::string documentType;
    std::string ticketNumber; ///< once the ticket is issued
};

enum class BookingState { Reserved, Documented, Ordered, Paid, Ticketed };

struct Reservation {
    std::string pnr;
    std::vector<Traveller> travellers;
    BookingState state = BookingState::Reserved;
    std::string transactionId;   ///< once an order is made
    std::string ticketReference; ///< once the ticket is issued
};

/// One availability and the reservations made under it: a customer who repeats the last step makes another
/// one.
struct Booking {
    std::string reference;
    Trip trip;
    Json summary; ///< `availabilitySummary` as it was answered
    DocumentTerms documents;
    Instant opened;
    Instant expires; ///< no reservation after that
    std::vector<Reservation> reservations;

    /// The first and the last day of travel.
    [[nodiscard]] Day firstDay() const { return trip.offer.request.departure; }
    [[nodiscard]] Day lastDay() const;
};

class Bookings {
public:
    explicit Bookings(std::uint64_t seed) : seed_(seed) {}

    /// A new booking with its reference and the `data` of the answer.
    Json open(Trip trip, DocumentTerms documents, Instant now, const Terms& terms,
              const std::string& address);

    /// The booking of that reference. Throws `Refusal`.
    Booking& at(const std::string& reference);

    /// The booking that holds the last reservation of all, when `reference` is empty, or the named one. It
    /// has a reservation. Throws `Refusal`.
    Booking& reserved(const std::string& reference);

    /// Adds a reservation; travellers get their ids here. Throws `Refusal` when the reference has expired or
    /// the booking is paid for.
    Reservation& reserve(Booking& booking, std::vector<Traveller> travellers, Instant now);

    /// Gives the reservation its tickets.
    void issueTickets(const Booking& booking, Reservation& reservation);

    /// The booking whose reservation has that ticket. Throws `Refusal`.
    const Booking& ticketed(const std::string& ticketReference) const;

    /// What scripts may look at: reference, trip type and, for each reservation, PNR, state and ids.
    [[nodiscard]] Json overview() const;

    void clear();

private:
    std::uint64_t seed_;
    std::deque<Booking> bookings_;
    std::string lastReserved_;
    std::size_t reservations_ = 0;
};

/// `bookingSummary` of a reservation's last state; the fare is left out of the one that answers a payment.
Json bookingSummary(const Booking& booking, const Reservation& reservation, bool withFare);

std::string_view stateName(BookingState state);

} // namespace ombrivane::sandbox
