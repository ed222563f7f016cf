#include "services/ClientCall.h"

#include "fakes/TestData.h"
#include "records/Decode.h"
#include "records/Encode.h"
#include "services/AirportSearchProvider.h"
#include "services/AuthenticationProvider.h"
#include "services/CountryProvider.h"
#include "services/DownloadTicketProvider.h"
#include "services/FlightAvailabilityProvider.h"
#include "services/FlightBookingProvider.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/FlightSearchRoundTripProvider.h"
#include "services/FlightTicketingProvider.h"
#include "services/PassengerDocumentsProvider.h"
#include "services/PaymentProvider.h"
#include "services/RestrictionProvider.h"

namespace ombrivane {
namespace {

using fakes::captured;

/// A record of a captured answer.
template <class Record> Record recordOf(const std::string& file, const std::string& pointer) {
    return decodeText<Record>(captured(file).at(Json::json_pointer(pointer)).dump());
}

template <class Offer> auto offerOf(const std::string& file, const std::string& pointer) {
    const auto bytes = std::make_shared<std::string>(captured(file).at(Json::json_pointer(pointer)).dump());
    auto offer = std::make_shared<Offer>(decodeText<Offer>(*bytes));
    offer->rawData = RawData(bytes, *bytes);
    return AnyFlight(std::shared_ptr<const Offer>(std::move(offer)));
}

FlightQuery query(const std::string& tripType) {
    FlightQuery query;
    query.tripType = tripType;
    query.departCity = "KTM";
    query.destCity = "DOH";
    query.departDate = Day::parse("2026-04-10").value();
    if (tripType == "round") query.returnDate = Day::parse("2026-04-20").value();
    query.nationality = "NP";
    query.adults = "2";
    query.children = "1";
    query.infants = "0";
    query.flightClass = "M";
    return query;
}

const std::string searched = R"("depart_city":"KTM","dest_city":"DOH","depart_date":"2026-04-10",)";
const std::string travellers =
    R"("nationality":"NP","adults":2,"children":1,"infants":0,"flight_class":"M"})";
const std::string searchedRound = R"({"user_type":"customer","trip_type":"round",)" + searched +
                                  R"("return_date":"2026-04-20",)" + travellers;

std::string itinerary(const std::string& type, const Json& flight) {
    return R"({"user_type":"customer","itinerary_type":")" + type + R"(","itinerary":)" + flight.dump() + "}";
}

Json first(const std::string& file) { return captured(file + ".expected").at(0); }

/// An offer of the special round as the program writes it: without what no field reads.
Json written(const std::string& pointer) {
    return encode(recordOf<FlightSearchOneWay>("search-special", pointer));
}

std::string pair(const std::string& head) {
    return head + R"("itinerary_type":"round_special","itinerary":)" + written("/data/0/0").dump() +
           R"(,"itinerary_return":)" + written("/data/1/0").dump() + "}";
}

template <class Provider, class Availability> auto availability(const char* type, const AnyFlight& flight) {
    return [=](Outcome& outcome) {
        Provider().fetchAvailability(type, flight, into<std::optional<Availability>>(outcome));
    };
}

template <class Provider> auto restrictions(const char* type, const AnyFlight& flight) {
    return [=](Outcome& outcome) {
        Provider().fetchRestrictions(type, flight, into<std::optional<std::string>>(outcome));
    };
}

std::vector<ClientCall> lookups() {
    return {
        {"token",
         "POST",
         "/get-token",
         R"({"user_type":"customer","username":"wallet","password":"s3cret"})",
         "token",
         first("token"),
         {},
         [](Outcome& outcome) {
             AuthenticationProvider().authenticate(
                 "wallet", "s3cret", std::nullopt, into<std::optional<Authentication>>(outcome));
         }},
        {"countries",
         "GET",
         "/countries?user_type=customer",
         std::nullopt,
         "countries",
         // Nepal, India and China lead; the rest keeps its place.
         [] {
             const Json all = captured("countries.expected");
             Json ordered = Json::array();
             for (const char* code : {"NP", "IN", "CN", "AF", "AU", "QA", "ZA", "TH"}) {
                 for (const Json& country : all)
                     if (country.at("short_name") == code) ordered.push_back(country);
             }
             return ordered;
         }(),
         Json::array(),
         [](Outcome& outcome) { CountryProvider().fetchCountries(into<std::vector<Country>>(outcome)); }},
        {"airports",
         "GET",
         "/search-airports?q=kath&user_type=customer",
         std::nullopt,
         "airports",
         captured("airports.expected"),
         Json::array(),
         [](Outcome& outcome) {
             AirportSearchProvider().searchAirports("kath", into<std::vector<Airport>>(outcome));
         }},
    };
}

std::vector<ClientCall> searches() {
    const Json noPair{{"departureFlights", Json::array()}, {"returnFlights", Json::array()}};
    const Json special = captured("search-special").at("data");
    Json specialResult = noPair;
    for (std::size_t i = 0; i < special.at(0).size(); ++i)
        specialResult["departureFlights"].push_back(written("/data/0/" + std::to_string(i)));
    for (std::size_t i = 0; i < special.at(1).size(); ++i)
        specialResult["returnFlights"].push_back(written("/data/1/" + std::to_string(i)));
    return {
        {"search_oneway",
         "POST",
         "/search-flights",
         R"({"user_type":"customer","trip_type":"oneway",)" + searched + travellers,
         "search-oneway",
         captured("search-oneway.expected"),
         Json::array(),
         [](Outcome& outcome) {
             FlightSearchOneWayProvider().searchFlights(query("oneway"), into<OneWayOffers>(outcome));
         }},
        {"search_round",
         "POST",
         "/search-flights",
         searchedRound,
         "search-round",
         captured("search-round.expected"),
         Json::array(),
         [](Outcome& outcome) {
             FlightSearchRoundTripProvider().searchFlights(query("round"), into<RoundTripOffers>(outcome));
         }},
        {"search_special",
         "POST",
         "/search-flights",
         searchedRound,
         "search-special",
         specialResult,
         noPair,
         [](Outcome& outcome) {
             FlightSearchRoundTripProvider().searchSpecialRoundFlights(
                 query("round"), into<FlightSearchRoundTripProvider::SpecialRoundFlights>(outcome));
         }},
    };
}

std::vector<ClientCall> itineraries() {
    const AnyFlight oneWay = capturedOneWay();
    const AnyFlight roundTrip = capturedRoundTrip();
    const AnyFlight departing = capturedOneWay("/data/0/0", "search-special");
    const AnyFlight returning = capturedOneWay("/data/1/0", "search-special");
    const Json rawOneWay = captured("search-oneway").at("data").at(0);
    const Json rawRoundTrip = captured("search-round").at("data").at(0);
    const Json rules = captured("restrictions").at("message");
    return {
        {"availability_oneway",
         "POST",
         "/availability",
         itinerary("oneway", rawOneWay),
         "availability-oneway",
         first("availability-oneway"),
         {},
         availability<OWFlightAvailabilityProvider, OWFlightAvailability>("oneway", oneWay)},
        {"availability_round",
         "POST",
         "/availability",
         itinerary("round", rawRoundTrip),
         "availability-round",
         first("availability-round"),
         {},
         availability<RTFlightAvailabilityProvider, RTFlightAvailability>("round", roundTrip)},
        {"availability_special",
         "POST",
         "/availability",
         pair(R"({"user_type":"customer",)"),
         "availability-special",
         captured("availability-special").at("data"),
         {},
         [=](Outcome& outcome) {
             RTFlightAvailabilityProvider().fetchAvailability(
                 "round_special", departing, returning, into<std::optional<RTFlightAvailability>>(outcome));
         }},
        {"restrictions_oneway",
         "POST",
         "/verify-flights",
         itinerary("oneway", first("search-oneway")),
         "restrictions",
         rules,
         {},
         restrictions<OWRestrictionProvider>("oneway", oneWay)},
        {"restrictions_round",
         "POST",
         "/verify-flights",
         itinerary("round", first("search-round")),
         "restrictions",
         rules,
         {},
         restrictions<RTRestrictionProvider>("round", roundTrip)},
        // The only body of the two operations without a user type.
        {"restrictions_special",
         "POST",
         "/verify-flights",
         pair("{"),
         "restrictions-none",
         {},
         {},
         [=](Outcome& outcome) {
             RTRestrictionProvider().fetchRestrictions(
                 "round_special", departing, returning, into<std::optional<std::string>>(outcome));
         }},
    };
}

std::vector<ClientCall> bookings() {
    const auto summary = recordOf<OWFlightAvailability>("availability-oneway", "/data").availabilitySummary;
    const auto contact = recordOf<EmergencyContact>("emergency-contact", "/data/emergencyContact");
    const auto booking = recordOf<FlightBooking>("reservation", "/data/bookingSummary");
    const std::string reference = booking.bookingReferenceID;
    std::vector<Passenger> passengers;
    for (const Json& passenger : captured("passengers.expected").get<std::vector<Json>>())
        passengers.push_back(decodeText<Passenger>(passenger.dump()));

    const Json available = captured("availability-oneway").at("/data/availabilitySummary"_json_pointer);
    const Json contactJson = captured("emergency-contact").at("/data/emergencyContact"_json_pointer);
    std::string form = "--B\r\nContent-Disposition: form-data; name=\"user_type\"\r\n\r\ncustomer\r\n"
                       "--B\r\nContent-Disposition: form-data; name=\"bookingReferenceID\"\r\n\r\n" +
                       reference + "\r\n";
    for (const auto& passenger : booking.passengers) {
        form += "--B\r\nContent-Disposition: form-data; name=\"documentType[" + passenger.passengerID +
                "]\"\r\n\r\npassport\r\n";
    }
    return {
        {"reservation",
         "POST",
         "/reservation",
         R"({"user_type":"customer","availabilitySummary":)" + available.dump() + R"(,"emergencyContact":)" +
             contactJson.dump() + R"(,"passengers":)" + captured("passengers.expected").dump() + "}",
         "reservation",
         first("reservation"),
         {},
         [=](Outcome& outcome) {
             FlightBookingProvider().reserve(
                 passengers, summary, contact, into<std::optional<FlightBooking>>(outcome));
         }},
        {"documents",
         "POST",
         "/documents",
         form + "--B--",
         "documents",
         first("reservation"),
         {},
         [=](Outcome& outcome) {
             const std::vector<std::optional<DocumentPicture>> none(passengers.size());
             PassengerDocumentsProvider().upload(passengers,
                                                 none,
                                                 booking.passengers,
                                                 reference,
                                                 into<std::optional<FlightBooking>>(outcome));
         }},
    };
}

std::vector<ClientCall> payments() {
    BookingSummary summary;
    summary.bookingReferenceID = "R1";
    summary.pnr = "P1";
    summary.tripType = "oneway";
    summary.currency = "NPR";
    return {
        {"order",
         "POST",
         "/kolmiwallet-generate-order",
         R"({"user_type":"customer","bookingReferenceID":"R1","partner":"kolmiWallet","transactionID":"T1","issuersNumber":"980"})",
         "order",
         first("order"),
         {},
         [](Outcome& outcome) {
             PaymentProvider().generateOrder(
                 "R1", "kolmiWallet", "T1", "980", into<std::optional<PaymentSummary>>(outcome));
         }},
        {"confirmation",
         "POST",
         "/kolmiwallet-confirm-order",
         R"({"user_type":"customer","bookingReferenceID":"R1","transactionID":"T1","otp":" 12 \"34 "})",
         "confirmation",
         first("confirmation"),
         {},
         [](Outcome& outcome) {
             PaymentProvider().confirmOrder(
                 "R1", "T1", " 12 \"34 ", into<std::optional<BookingSummary>>(outcome));
         }},
        {"ticket",
         "POST",
         "/issue-ticket",
         R"({"user_type":"customer","bookingReferenceID":"R1","PNR":"P1","tripType":"oneway","currency":"NPR"})",
         "ticket",
         first("ticket"),
         {},
         [summary](Outcome& outcome) {
             FlightTicketingProvider().issueTicket(summary, into<std::optional<FlightTicketing>>(outcome));
         }},
        {"ticket_of_nothing",
         "POST",
         "/issue-ticket",
         R"({"user_type":"customer","bookingReferenceID":"","PNR":"","tripType":"","currency":""})",
         "ticket",
         first("ticket"),
         {},
         [](Outcome& outcome) {
             FlightTicketingProvider().issueTicket(std::nullopt,
                                                   into<std::optional<FlightTicketing>>(outcome));
         }},
        {"download",
         "POST",
         "/download-ticket",
         R"({"user_type":"customer","ticketReferenceID":"K1"})",
         "download",
         captured("download").at("/data/eticketLink"_json_pointer),
         "",
         [](Outcome& outcome) { DownloadTicketProvider().download("K1", into<std::string>(outcome)); }},
    };
}

} // namespace

AnyFlight capturedOneWay(const std::string& pointer, const std::string& file) {
    return offerOf<FlightSearchOneWay>(file, pointer);
}

AnyFlight capturedRoundTrip() { return offerOf<FlightSearchRoundTrip>("search-round", "/data/0"); }

std::vector<ClientCall> clientCalls() {
    std::vector<ClientCall> calls;
    for (auto part : {lookups(), searches(), itineraries(), bookings(), payments()})
        calls.insert(calls.end(), part.begin(), part.end());
    return calls;
}

} // namespace ombrivane
