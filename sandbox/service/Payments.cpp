#include "sandbox/service/Payments.h"

#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Dice.h"

#include <fmt/format.h>

namespace ombrivane::sandbox {

namespace {

std::string place(const Airport& airport) { return fmt::format("{} ({})", airport.city, airport.code); }

std::string withoutMarkup(std::string_view text) {
    std::string result;
    for (char letter : text) {
        if (letter == '<') {
            result += "&lt;";
        } else if (letter == '&') {
            result += "&amp;";
        } else {
            result += letter;
        }
    }
    return result;
}

void expect(bool good, const char* complaint) {
    if (!good) throw Refusal(complaint);
}

} // namespace

Json generateOrder(const BodyFields& fields, Bookings& bookings) {
    fields.expectKeys({"user_type", "bookingReferenceID", "partner", "transactionID", "issuersNumber"});
    Booking& booking = bookings.reserved(fields.text("bookingReferenceID"));
    Reservation& reservation = booking.reservations.back();
    expect(fields.text("partner") == "kolmiWallet", "The partner is not known.");
    static_cast<void>(fields.text("transactionID"));
    static_cast<void>(fields.text("issuersNumber"));
    expect(reservation.state < BookingState::Paid, "The booking has been paid for already.");
    expect(!booking.documents.required || reservation.state != BookingState::Reserved,
           "The travel documents have not been uploaded.");
    reservation.transactionId = "TX" + Dice(0, "order " + reservation.pnr).letters(12, digits);
    reservation.state = BookingState::Ordered;
    const Journey& outbound = booking.trip.outbound();
    Json summary{{"partnerName", "kolmiWallet"},
                 {"bookingReferenceID", booking.reference},
                 {"currency", "NPR"},
                 {"amount", booking.trip.fare().total()},
                 {"transactionID", reservation.transactionId},
                 {"tripType", booking.trip.type},
                 {"departureAirport", place(*outbound.first().from)},
                 {"arrivalAirport", place(*outbound.last().to)},
                 {"departureDate", longText(outbound.first().departure)}};
    if (const Journey* back = booking.trip.back()) summary["returnDate"] = longText(back->first().departure);
    return {{"paymentSummary", summary}};
}

Json confirmOrder(const BodyFields& fields, Bookings& bookings, const std::string& otp) {
    fields.expectKeys({"user_type", "bookingReferenceID", "transactionID", "otp"});
    Booking& booking = bookings.reserved(fields.text("bookingReferenceID"));
    Reservation& reservation = booking.reservations.back();
    const std::string& transaction = fields.text("transactionID");
    expect(reservation.state < BookingState::Paid, "The booking has been paid for already.");
    expect(reservation.state == BookingState::Ordered, "There is no order for this booking.");
    expect(transaction.empty() || transaction == reservation.transactionId, "The transaction is not known.");
    expect(fields.text("otp") == otp, "Invalid OTP.");
    reservation.state = BookingState::Paid;
    return {{"bookingSummary", bookingSummary(booking, reservation, false)}};
}

Json issueTicket(const BodyFields& fields, Bookings& bookings, Instant now) {
    fields.expectKeys({"user_type", "bookingReferenceID", "PNR", "tripType", "currency"});
    Booking& booking = bookings.reserved(fields.filledText("bookingReferenceID"));
    Reservation& reservation = booking.reservations.back();
    expect(fields.text("PNR") == reservation.pnr, "The PNR is not the one of the booking.");
    expect(fields.text("tripType") == booking.trip.type, "The tripType is not the one of the booking.");
    expect(fields.text("currency") == "NPR", "The currency is not the one of the booking.");
    expect(reservation.state >= BookingState::Paid, "The booking has not been paid for.");
    if (reservation.state == BookingState::Paid) bookings.issueTickets(booking, reservation);
    const Airline& airline = *booking.trip.outbound().first().carrier;
    Json passengers = Json::array();
    for (const Traveller& traveller : reservation.travellers)
        passengers.push_back(
            {{"passenger_type", traveller.type},
             {"passenger_name", traveller.name},
             {"eticket_number", traveller.ticketNumber},
             {"PNR", reservation.pnr},
             {"airlines_confirmation", fmt::format("{}-{}", airline.code, reservation.pnr)}});
    return {{"ticketSummary",
             {{"ticketReferenceID", reservation.ticketReference},
              {"tripType", booking.trip.type},
              {"currency", "NPR"},
              {"issued_date", instantText(now).substr(0, 10)}}},
            {"passengers", passengers}};
}

Json downloadTicket(const BodyFields& fields, const Bookings& bookings, const std::string& address) {
    fields.expectKeys({"user_type", "ticketReferenceID"});
    const std::string& reference = fields.filledText("ticketReferenceID");
    static_cast<void>(bookings.ticketed(reference));
    return {{"eticketLink", fmt::format("{}/tickets/{}", address, reference)}};
}

std::string ticketPage(const std::string& ticketReference, const Bookings& bookings) {
    const Booking& booking = bookings.ticketed(ticketReference);
    std::string rows;
    for (const Reservation& reservation : booking.reservations) {
        if (reservation.ticketReference != ticketReference) continue;
        for (const Traveller& traveller : reservation.travellers)
            rows += fmt::format("<tr><td>{}</td><td>{}</td><td>{}</td></tr>\n",
                                withoutMarkup(traveller.name),
                                traveller.ticketNumber,
                                reservation.pnr);
    }
    const Leg& first = booking.trip.outbound().first();
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>{0}</title></head>\n"
        "<body><h1>Ticket {0}</h1><p>{1} to {2}, {3}</p>\n<table>\n"
        "<tr><th>Passenger</th><th>Ticket</th><th>PNR</th></tr>\n{4}</table></body></html>\n",
        ticketReference,
        place(*first.from),
        place(*booking.trip.outbound().last().to),
        longText(first.departure),
        rows);
}

} // namespace ombrivane::sandbox
