#include "sandbox/service/Bookings.h"

#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Dice.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ombrivane::sandbox {

Day Booking::lastDay() const {
    const Journey* back = trip.back();
    return back == nullptr
               ? firstDay()
               : Day(std::chrono::floor<std::chrono::days>(back->first().departure).time_since_epoch());
}

Json Bookings::open(Trip trip, DocumentTerms documents, Instant now, const Terms& terms,
                    const std::string& address) {
    Dice dice(seed_, fmt::format("booking {} {}", trip.offer.key, bookings_.size()));
    Booking booking;
    booking.reference = dice.letters(14, capitalsAndDigits);
    const std::string token = dice.percent(80) ? dice.letters(32, hexadecimal) : "";
    Json data = availabilityJson(trip, booking.reference, token, documents, address);
    booking.trip = std::move(trip);
    booking.summary = data["availabilitySummary"];
    booking.documents = std::move(documents);
    booking.opened = now;
    booking.expires = now + terms.holds;
    bookings_.push_back(std::move(booking));
    return data;
}

Booking& Bookings::at(const std::string& reference) {
    const auto found = std::find_if(bookings_.begin(), bookings_.end(), [&](const Booking& booking) {
        return booking.reference == reference;
    });
    if (found == bookings_.end()) throw Refusal("The booking reference is not known.");
    return *found;
}

Booking& Bookings::reserved(const std::string& reference) {
    if (reference.empty() && lastReserved_.empty()) throw Refusal("There is no reservation yet.");
    Booking& booking = at(reference.empty() ? lastReserved_ : reference);
    if (booking.reservations.empty()) throw Refusal("The booking has no reservation.");
    return booking;
}

Reservation& Bookings::reserve(Booking& booking, std::vector<Traveller> travellers, Instant now) {
    if (now > booking.expires) throw Refusal("The session has expired. Please check the latest fares.");
    for (const Reservation& earlier : booking.reservations)
        if (earlier.state >= BookingState::Paid) throw Refusal("The booking has been paid for already.");
    Dice dice(seed_, fmt::format("reservation {} {}", booking.reference, reservations_));
    Reservation reservation;
    reservation.pnr = dice.letters(6, capitals);
    reservation.travellers = std::move(travellers);
    for (std::size_t i = 0; i < reservation.travellers.size(); ++i)
        reservation.travellers[i].id = std::to_string(41'001 + 10 * reservations_ + i);
    ++reservations_;
    lastReserved_ = booking.reference;
    booking.reservations.push_back(std::move(reservation));
    return booking.reservations.back();
}

void Bookings::issueTickets(const Booking& booking, Reservation& reservation) {
    Dice dice(seed_, fmt::format("tickets {} {}", booking.reference, reservation.pnr));
    reservation.ticketReference = "TKT" + dice.letters(11, capitalsAndDigits);
    for (Traveller& traveller : reservation.travellers)
        traveller.ticketNumber = fmt::format("{}-{}", dice.letters(3, digits), dice.letters(10, digits));
    reservation.state = BookingState::Ticketed;
}

const Booking& Bookings::ticketed(const std::string& ticketReference) const {
    for (const Booking& booking : bookings_)
        for (const Reservation& reservation : booking.reservations)
            if (!ticketReference.empty() && reservation.ticketReference == ticketReference) return booking;
    throw Refusal("The ticket is not known.");
}

Json Bookings::overview() const {
    Json list = Json::array();
    for (const Booking& booking : bookings_) {
        Json reservations = Json::array();
        for (const Reservation& reservation : booking.reservations) {
            Json ids = Json::array();
            for (const Traveller& traveller : reservation.travellers)
                ids.push_back(traveller.id);
            reservations.push_back({{"PNR", reservation.pnr},
                                    {"state", stateName(reservation.state)},
                                    {"passengers", ids},
                                    {"ticketReferenceID", reservation.ticketReference}});
        }
        list.push_back({{"bookingReferenceID", booking.reference},
                        {"tripType", booking.trip.type},
                        {"opened", instantText(booking.opened)},
                        {"reservations", reservations}});
    }
    return list;
}

void Bookings::clear() {
    bookings_.clear();
    lastReserved_.clear();
    reservations_ = 0;
}

Json bookingSummary(const Booking& booking, const Reservation& reservation, bool withFare) {
    Json travellers = Json::array();
    for (const Traveller& traveller : reservation.travellers)
        travellers.push_back({{"passenger_id", traveller.id},
                              {"passenger_type", traveller.type},
                              {"passenger_name", traveller.name}});
    Json tree{{"bookingReferenceID", booking.reference},
              {"PNR", reservation.pnr},
              {"tripType", booking.trip.type},
              {"currency", "NPR"}};
    if (withFare) tree["fareInformation"] = fareJson(booking.trip.fare());
    tree["passengers"] = travellers;
    return tree;
}

std::string_view stateName(BookingState state) {
    constexpr std::array<std::string_view, 5> names{"reserved", "documented", "ordered", "paid", "ticketed"};
    return names[static_cast<std::size_t>(state)];
}

} // namespace ombrivane::sandbox
