#include "SearchAnswer.h"

#include "base/Json.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>
#include <functional>
#include <random>
#include <set>
#include <string_view>

namespace ombrivane::bench {
namespace {

struct Place {
    std::string_view code;
    std::string_view name;
    std::string_view city;
    std::string_view country;
};

struct Carrier {
    std::string_view code;
    std::string_view name;
};

constexpr std::array<Place, 6> places{{{"KTM", "Tribhuvan International Airport", "Kathmandu", "Nepal"},
                                       {"DEL", "Indira Gandhi International Airport", "Delhi", "India"},
                                       {"DOH", "Hamad International Airport", "Doha", "Qatar"},
                                       {"BKK", "Suvarnabhumi Airport", "Bangkok", "Thailand"},
                                       {"SIN", "Changi Airport", "Singapore", "Singapore"},
                                       {"LHR", "Heathrow Airport", "London", "United Kingdom"}}};

constexpr std::array<Carrier, 12> carriers{{{"U0", "Everpeak Airways"},
                                            {"X0", "Saffron Route Airways"},
                                            {"W0", "Desert Heron Airways"},
                                            {"M0", "Coral Gate Airlines"},
                                            {"L0", "Golden Dune Air"},
                                            {"A0", "Monsoon Line"},
                                            {"F0", "Silver Crane Air"},
                                            {"I0", "Straits Lantern Airlines"},
                                            {"O0", "Pearl Delta Airways"},
                                            {"0H", "Bosporus Sky"},
                                            {"0K", "Kestrel Bay Airways"},
                                            {"0M", "Amber Fjord"}}};

/// One flight from a place to the next; times are minutes after the midnight of the first day.
struct Leg {
    const Place& from;
    const Place& to;
    int departure;
    int arrival;
};

/// Writes one offer after the other from one run of random numbers.
class OfferWriter {
public:
    Json offer(std::size_t index) {
        carrier_ = &carriers[below(carriers.size())];
        const std::size_t legs = 1 + index % 3;
        const auto kilos = static_cast<int>(20 + 5 * below(3));
        Json tree{{"search_summary", searchSummary(legs, kilos)},
                  {"fare_information", fareInformation()},
                  {"flight_summary", flightSummary(index, legs)},
                  {"baggage_details", {{"cabin", 7}, {"baggage", std::to_string(kilos)}}},
                  {"booking_class", "Y"}};
        tree["seats_left"] = 1 + index % 9;
        return tree;
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    std::string reference() {
        constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
        std::string text(22, ' ');
        for (char& letter : text)
            letter = letters[below(letters.size())];
        return text + "==";
    }

    static std::string clock(int minute) { return fmt::format("{:02}:{:02}", minute / 60 % 24, minute % 60); }
    static std::string day(int minute) { return fmt::format("2026-03-{:02}", 14 + minute / 1440); }
    static std::string zoned(int minute) { return day(minute) + "T" + clock(minute) + ":00.000+05:45"; }
    static std::string duration(int minutes) {
        return fmt::format("{} Hr {} Min", minutes / 60, minutes % 60);
    }

    static Json airport(const Place& place) {
        return {{"name", place.name}, {"city", place.city}, {"code", place.code}, {"country", place.country}};
    }

    /// Where and when a flight or a whole journey leaves and lands, and who flies it.
    void addRoute(Json& tree, const Leg& leg) const {
        tree["dateOfDeparture"] = day(leg.departure);
        tree["timeOfDeparture"] = clock(leg.departure);
        tree["dateOfArrival"] = day(leg.arrival);
        tree["timeOfArrival"] = clock(leg.arrival);
        tree["timeOfDepartureSystem"] = zoned(leg.departure);
        tree["timeOfArrivalSystem"] = zoned(leg.arrival);
        tree["locationDeparture"] = leg.from.code;
        tree["airportDeparture"] = airport(leg.from);
        tree["locationArrival"] = leg.to.code;
        tree["airportArrival"] = airport(leg.to);
    }

    void addCarrier(Json& tree) const {
        tree["carrierName"] = carrier_->name;
        tree["carrierCode"] = carrier_->code;
        tree["carrierLogo"] = fmt::format("https://localhost:8443/logos/{}.png", carrier_->code);
        tree["carrierCodeMarketing"] = carrier_->code;
        tree["carrierCodeMarketingName"] = carrier_->name;
    }

    Json searchSummary(std::size_t legs, int kilos) {
        return {{"search_key", reference()},
                {"source_id", std::to_string(1 + below(3))},
                {"currency", "NPR"},
                {"validating_carrier", carrier_->code},
                {"rbd", Json(std::vector<std::string>(legs, "Y"))},
                {"booking_class", "M"},
                {"ticketing_currency", "NPR"},
                {"FreeBaggage", kilos},
                {"FlightNo", std::to_string(100 + below(900))},
                {"refundable", below(2) == 0 ? "Refundable" : "Non-Refundable"}};
    }

    Json fareInformation() {
        const auto adult = static_cast<std::int64_t>(25'000 + below(90'000));
        const std::int64_t child = adult * 3 / 4;
        const std::int64_t infant = adult / 10;
        return {{"total_adt", adult},
                {"total_chd", child},
                {"total_inf", infant},
                {"total_cost", adult + child + infant},
                {"cashBack", static_cast<double>(below(2000)) / 4},
                {"fare_token", reference()}};
    }

    Json flightSummary(std::size_t index, std::size_t count) {
        std::vector<Leg> legs;
        int minute = static_cast<int>(below(1440));
        for (std::size_t i = 0; i < count; ++i) {
            const int flying = static_cast<int>(60 + below(400));
            legs.push_back(
                {places[i], i + 1 < count ? places[i + 1] : places.back(), minute, minute + flying});
            minute += flying + static_cast<int>(60 + below(300));
        }
        const Leg journey{legs.front().from, legs.back().to, legs.front().departure, legs.back().arrival};
        Json tree{{"FlightId", std::to_string(index + 1)},
                  {"booking_class", "Y"},
                  {"journeyKey", reference()},
                  {"fareKey", reference()}};
        addRoute(tree, journey);
        addCarrier(tree);
        tree["total_flying_hours"] = duration(journey.arrival - journey.departure);
        tree["segments"] = Json::array();
        for (std::size_t i = 0; i < legs.size(); ++i) {
            Json connection = false;
            if (i + 1 < legs.size()) {
                const int wait = legs[i + 1].departure - legs[i].arrival;
                connection = fmt::format("{}h {}m", wait / 60, wait % 60);
            }
            tree["segments"].push_back(segment(legs[i], i, connection));
        }
        for (const char* kind : {"ADT", "INF", "CNN"})
            tree["fares"][kind] = fare(kind, journey);
        return tree;
    }

    Json segment(const Leg& leg, std::size_t number, const Json& connection) {
        const std::string flightNumber = std::to_string(100 + below(900));
        Json tree = Json::object();
        addRoute(tree, leg);
        tree["departure_terminal"] = "1";
        tree["destination_terminal"] = std::to_string(1 + number);
        addCarrier(tree);
        tree["total_flying_hours"] = duration(leg.arrival - leg.departure);
        tree["flightNumber"] = flightNumber;
        tree["equipmentType"] = "320";
        tree["rph"] = std::to_string(number + 1);
        tree["connection_time"] = connection;
        tree["segment_details"] = segmentDetails(leg, flightNumber);
        tree["meal_code"] = "M";
        return tree;
    }

    Json segmentDetails(const Leg& leg, const std::string& flightNumber) {
        const std::string key = reference();
        return {
            {"attributes",
             {{"Key", key},
              {"Group", "0"},
              {"Carrier", carrier_->code},
              {"FlightNumber", flightNumber},
              {"Origin", leg.from.code},
              {"Destination", leg.to.code},
              {"DepartureTime", zoned(leg.departure)},
              {"ArrivalTime", zoned(leg.arrival)},
              {"FlightTime", std::to_string(leg.arrival - leg.departure)},
              {"Equipment", "320"},
              {"Status", "HK"},
              {"SupplierCode", carrier_->code},
              {"ChangeOfPlane", "false"},
              {"OptionalServicesIndicator", "false"},
              {"APISRequirementsRef", reference()}}},
            {"airCodeshareInfo",
             {{"attributes", {{"OperatingCarrier", carrier_->code}, {"OperatingFlightNumber", flightNumber}}},
              {"value", carrier_->name}}},
            {"airAirAvailInfo", {{"attributes", {{"ProviderCode", "1X"}}}, {"value", ""}}},
            {"airFlightDetailsRef", {{"attributes", {{"Key", reference()}}}, {"value", ""}}},
            {"segment_ref",
             {{"BookingCode", "Y"},
              {"BookingCount", std::to_string(1 + below(9))},
              {"CabinClass", "Economy"},
              {"FareInfoRef", reference()},
              {"SegmentRef", key},
              {"HostTokenRef", reference()},
              {"hostToken", reference()}}}};
    }

    Json fare(std::string_view kind, const Leg& journey) {
        const std::string key = reference();
        return {
            {"attributes",
             {{"Key", key},
              {"FareBasis", fmt::format("YCLOW{}", kind)},
              {"PassengerTypeCode", kind},
              {"Origin", journey.from.code},
              {"Destination", journey.to.code},
              {"EffectiveDate", zoned(journey.departure)},
              {"PromotionalFare", "false"},
              {"FareFamily", "CLASSIC"},
              {"SupplierCode", carrier_->code}}},
            {"airFareRuleKey",
             {{"attributes", {{"FareInfoRef", key}, {"ProviderCode", "1X"}}}, {"value", reference()}}},
            {"airBrand",
             {{"attributes", {{"Key", reference()}, {"BrandID", "1001"}, {"UpSellBrandID", "1002"}}},
              {"airUpsellBrand",
               {{"attributes", {{"FareBasis", "YCLOWUP"}, {"FareInfoRef", reference()}}}, {"value", ""}}}}}};
    }

    std::mt19937 random_{20260314};
    const Carrier* carrier_ = nullptr;
};

/// Takes the keys that a record may lack out of a tree, at every depth.
void thinOut(Json& tree) {
    static const std::set<std::string, std::less<>> optional{"FlightId",
                                                             "FreeBaggage",
                                                             "FlightNo",
                                                             "airAirAvailInfo",
                                                             "airCodeshareInfo",
                                                             "airFlightDetailsRef",
                                                             "booking_class",
                                                             "carrierCodeMarketing",
                                                             "carrierCodeMarketingName",
                                                             "departure_terminal",
                                                             "destination_terminal",
                                                             "equipmentType",
                                                             "fareKey",
                                                             "fares",
                                                             "journeyKey",
                                                             "meal_code",
                                                             "rph",
                                                             "segment_details",
                                                             "timeOfArrivalSystem",
                                                             "timeOfDepartureSystem"};
    for (auto member = tree.begin(); member != tree.end();) {
        if (tree.is_object() && optional.contains(member.key())) {
            member = tree.erase(member);
            continue;
        }
        if (member->is_structured()) thinOut(*member);
        if (member->is_string() && member->get_ref<const std::string&>().ends_with("Airport"))
            *member = member->get<std::string>() + " \u2013 Aéroport";
        ++member;
    }
}

template <class Write> std::string answerOf(std::size_t offers, const Write& write) {
    OfferWriter writer;
    std::string answer = R"({"success":true,"data":[)";
    for (std::size_t i = 0; i < offers; ++i) {
        if (i > 0) answer += ',';
        answer += write(writer.offer(i));
    }
    return answer + "]}";
}

} // namespace

std::string searchAnswer(std::size_t offers) {
    return answerOf(offers, [](const Json& offer) { return offer.dump(); });
}

std::string sparseAnswer(std::size_t offers) {
    return answerOf(offers, [](Json offer) {
        thinOut(offer);
        return offer.dump(2, ' ', true);
    });
}

} // namespace ombrivane::bench
