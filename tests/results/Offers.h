#pragma once

#include "base/Json.h"
#include "records/AnyFlight.h"
#include "records/Decode.h"

#include <memory>
#include <string>
#include <vector>

/// Small offers as the service writes them, and its answers around them.
namespace ombrivane::offers {

inline Json airport(const char* code, const char* city, const Json& country = "Nepal") {
    Json json{{"name", std::string(city) + " Airport"}, {"city", city}, {"code", code}};
    if (!country.is_null()) json["country"] = country;
    return json;
}

inline Json segment(const Json& connection = false) {
    return {{"dateOfDeparture", "2026-12-01"},
            {"timeOfDeparture", "10:15"},
            {"dateOfArrival", "2026-12-02"},
            {"timeOfArrival", "01:05"},
            {"locationDeparture", "KTM"},
            {"airportDeparture", airport("KTM", "Kathmandu")},
            {"locationArrival", "DOH"},
            {"airportArrival", airport("DOH", "Doha", "Qatar")},
            {"carrierName", "Saffron"},
            {"carrierCode", "SF"},
            {"carrierLogo", "https://logos.example/SF.png"},
            {"total_flying_hours", "5 Hr 5 Min"},
            {"flightNumber", "12"},
            {"connection_time", connection}};
}

inline Json journey(const std::string& carrier, const std::string& time) {
    return {{"dateOfDeparture", "2026-12-01"},
            {"timeOfDeparture", time},
            {"dateOfArrival", "2026-12-02"},
            {"timeOfArrival", "01:05"},
            {"locationDeparture", "KTM"},
            {"airportDeparture", airport("KTM", "Kathmandu")},
            {"locationArrival", "DOH"},
            {"airportArrival", airport("DOH", "Doha", "Qatar")},
            {"carrierName", carrier},
            {"carrierCode", "SF"},
            {"carrierLogo", "https://logos.example/" + carrier + ".png"},
            {"total_flying_hours", "5 Hr 5 Min"},
            {"segments", Json::array({segment()})}};
}

/// An offer by what tells it from the others; the key names it in expectations.
struct Sketch {
    std::string key = "a";
    std::int64_t cost = 1000;
    std::string carrier = "Saffron";
    std::string time = "10:15";
    std::string currency = "NPR";
};

inline Json shared(const Sketch& sketch) {
    return {{"search_summary",
             {{"search_key", sketch.key},
              {"source_id", "3"},
              {"currency", sketch.currency},
              {"validating_carrier", "SF"}}},
            {"fare_information", {{"total_cost", sketch.cost}}}};
}

inline Json oneWay(const Sketch& sketch) {
    Json json = shared(sketch);
    json["flight_summary"] = journey(sketch.carrier, sketch.time);
    json["baggage_details"] = {{"cabin", 7}, {"baggage", "30"}};
    return json;
}

/// The way back is another airline's, in the evening.
inline Json roundTrip(const Sketch& sketch) {
    Json json = shared(sketch);
    json["flight_departure_summary"] = journey(sketch.carrier, sketch.time);
    json["flight_return_summary"] = journey("Returning", "23:10");
    json["baggage_details"] = {{"outbound", {{"cabin", 7}, {"baggage", 20}}},
                               {"return", {{"cabin", 5}, {"baggage", 30}}}};
    return json;
}

inline Json listOf(const std::vector<Sketch>& sketches, Json (*make)(const Sketch&) = oneWay) {
    Json list = Json::array();
    for (const auto& sketch : sketches)
        list.push_back(make(sketch));
    return list;
}

inline std::string success(const Json& data) { return Json{{"success", true}, {"data", data}}.dump(); }

inline std::string refusal(const std::string& message) {
    return Json{{"success", false}, {"data", {{"error", message}}}}.dump();
}

inline OneWayOffer decodedOneWay(const Json& json) {
    return std::make_shared<const FlightSearchOneWay>(decodeText<FlightSearchOneWay>(json.dump()));
}

inline RoundTripOffer decodedRoundTrip(const Json& json) {
    return std::make_shared<const FlightSearchRoundTrip>(decodeText<FlightSearchRoundTrip>(json.dump()));
}

/// The keys of a list in its order, as one word.
template <class Offers> std::string keysOf(const Offers& list) {
    std::string keys;
    for (const auto& offer : list)
        keys += offer->searchSummary.searchKey;
    return keys;
}

} // namespace ombrivane::offers
