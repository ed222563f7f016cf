#include "base/ErrorDomains.h"
#include "base/ErrorTexts.h"
#include "booking/HandOverFlight.h"
#include "outcomes/StandIn.h"
#include "records/Encode.h"
#include "records/FlightBooking.h"
#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"
#include "services/CustomError.h"
#include "services/ErrorWords.h"
#include "words/Words.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ombrivane::kit {
namespace {

struct Place {
    const char* code;
    const char* airport;
    const char* city;
};

constexpr Place kathmandu{"KTM", "Tribhuvan International Airport", "Kathmandu"};
constexpr Place pokhara{"PKR", "Pokhara International Airport", "Pokhara"};
constexpr Place doha{"DOH", "Hamad International Airport", "Doha"};
constexpr Place dubai{"DXB", "Dubai International Airport", "Dubai"};
constexpr Place bharatpur{"BHR", "Bharatpur Airport", "Bharatpur"};
constexpr Place biratnagar{"BIR", "Biratnagar Airport", "Biratnagar"};

const Place& destinationOf(const Booked& booked) { return booked.isAbroad ? doha : pokhara; }

/// The way out, in either of the two records.
template <class Summary> Summary wayOut(const Place& to) {
    Summary flights;
    flights.carrierCode = "H0";
    flights.carrierLogo = "https://localhost/logos/H0.png";
    flights.carrierName = "Karnali Wings";
    flights.deptDate = "2027-01-10";
    flights.deptTime = "22:15";
    flights.destDate = "2027-01-11";
    flights.destTime = "01:40";
    flights.departCityAirportCode = kathmandu.code;
    flights.departCityAirportName = kathmandu.airport;
    flights.departCityName = kathmandu.city;
    flights.destCityAirportCode = to.code;
    flights.destCityAirportName = to.airport;
    flights.destCityName = to.city;
    return flights;
}

/// Comes back from another airport than it went to, and to another than it left: no two fields of both ways
/// are alike.
RTFlightsSummary bothWays(const Booked& booked) {
    RTFlightsSummary flights = wayOut<RTFlightsSummary>(destinationOf(booked));
    const Place& from = booked.isAbroad ? dubai : bharatpur;
    flights.carrierCodeReturn = "S7";
    flights.carrierLogoReturn = "https://localhost/logos/S7.png";
    flights.carrierNameReturn = "Seti Air";
    flights.returnDeptDate = "2027-01-20";
    flights.returnDeptTime = "21:05";
    flights.returnDestDate = "2027-01-21";
    flights.returnDestTime = "03:55";
    flights.returnDepartCityAirportCode = from.code;
    flights.returnDepartCityAirportName = from.airport;
    flights.returnDepartCityName = from.city;
    flights.returnDestCityAirportCode = biratnagar.code;
    flights.returnDestCityAirportName = biratnagar.airport;
    flights.returnDestCityName = biratnagar.city;
    return flights;
}

Dictionary flightSummary(const Booked& booked) {
    if (!booked.isRoundTrip) {
        const auto flights = wayOut<FlightsSummary>(destinationOf(booked));
        return Dictionary{{"departureFlight", handOverFlight(flights)}, {"returnFlight", nullptr}};
    }
    const RTFlightsSummary flights = bothWays(booked);
    return Dictionary{{"departureFlight", handOverFlight(flights)},
                      {"returnFlight", handOverReturnFlight(flights)}};
}

std::vector<FlightBookingPassenger> passengers(const Booked& booked) {
    const std::pair<const char*, std::size_t> groups[] = {
        {"ADT", booked.adults}, {"CHD", booked.children}, {"INF", booked.infants}};
    std::vector<FlightBookingPassenger> list;
    for (const auto& [type, count] : groups) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::string number = std::to_string(list.size() + 1);
            list.push_back({"4100" + number, type, "Traveller" + number + " Lama"});
        }
    }
    return list;
}

/// What all of one kind pay together; each kind pays its own amount.
std::int64_t total(std::size_t count, std::int64_t each) { return static_cast<std::int64_t>(count) * each; }

FlightBooking booking(const Booked& booked) {
    FlightBooking booking;
    booking.bookingReferenceID = "CEF7LTXYYE6P3C";
    booking.pnr = "PJZGBL";
    booking.tripType = booked.isRoundTrip ? "round" : "oneway";
    booking.currency = "NPR";
    auto& fare = booking.fareInformation;
    fare.totalADT = total(booked.adults, booked.isAbroad ? 40663 : 3978);
    fare.totalChd = total(booked.children, booked.isAbroad ? 30497 : 2984);
    fare.totalInf = total(booked.infants, booked.isAbroad ? 4066 : 398);
    // A fee that no traveller bears alone: a wallet that adds the parts up has another sum.
    fare.totalCost = fare.totalADT + fare.totalChd + fare.totalInf + 25;
    if (booked.hasCashBack) fare.cashBack = 202.5;
    booking.passengers = passengers(booked);
    return booking;
}

} // namespace

Dictionary reservation(const Booked& booked) {
    const FlightBooking made = booking(booked);
    // What the customer saw, before the service's last word: not the same number.
    const Dictionary seen =
        booked.hasTotalCost ? Dictionary(made.fareInformation.totalCost - 1) : Dictionary("");
    return Dictionary{
        {"exit", true},
        {"flightSummary", flightSummary(booked)},
        {"emergencyContact",
         Dictionary{{"contact", "9801234567"}, {"email", "sunita@example.com"}, {"name", "Sunita Rai"}}},
        {"bookingSummary", encode(made)},
        {"bearerToken", "token-of-the-stand-in"},
        {"totalCost", seen}};
}

Dictionary confirmation(const Booked& booked) {
    const FlightBooking made = booking(booked);
    const BookingSummary summary{
        made.bookingReferenceID, made.pnr, made.tripType, made.currency, made.passengers};
    return Dictionary{{"exit", false}, {"bookingSummary", encode(summary)}};
}

Error errorOf(ErrorKind kind) {
    const auto of = [](const char* domain, auto code, std::string text) {
        return inCustomersWords({domain, static_cast<int>(code), std::move(text)});
    };
    switch (kind) {
    case ErrorKind::unsupportedSystem:
        return makeError(CustomError::requiredIOSVersion);
    case ErrorKind::noConnection:
        return makeError(CustomError::noInternetConnection);
    case ErrorKind::serviceNotReached:
        return of(errorDomain::network, NetworkError::notConnected, errorText::notReached);
    case ErrorKind::serviceNotTrusted:
        return of(errorDomain::network, NetworkError::notTrusted, errorText::notSecured);
    case ErrorKind::timedOut:
        return of(errorDomain::network, NetworkError::timedOut, errorText::timedOut);
    case ErrorKind::connectionLost:
        return of(errorDomain::network, NetworkError::broken, errorText::connectionLost);
    case ErrorKind::answerTooLarge:
        return of(errorDomain::network, NetworkError::tooLarge, errorText::answerTooLarge);
    case ErrorKind::answerNotUnderstood:
        return of(errorDomain::decoding, 0, errorText::answerNotUnderstood);
    case ErrorKind::credentialsRefused:
        return of(errorDomain::authentication, 0, "Invalid credentials.");
    case ErrorKind::refused:
        return of(errorDomain::service, ServiceError::refused, "Sorry! The service is closed.");
    case ErrorKind::answerMissing:
        return of(errorDomain::service, ServiceError::unanswered, errorText::answerMissing);
    case ErrorKind::invalidRequest:
        return of(errorDomain::encoding, 0, said(Text::errorRequestNotWritten));
    case ErrorKind::unforeseen:
        break;
    }
    return of(errorDomain::service, ServiceError::notCompleted, errorText::notCompleted);
}

} // namespace ombrivane::kit
