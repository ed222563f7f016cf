#include "tests/sandbox/ServiceClient.h"

#include "sandbox/service/ServiceClock.h"
#include "sandbox/world/Airports.h"
#include "sandbox/world/Countries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <thread>

namespace ombrivane::sandbox {

namespace {

std::vector<std::string> codes(const std::vector<const Airport*>& airports) {
    std::vector<std::string> list;
    for (const Airport* airport : airports)
        list.emplace_back(airport->code);
    return list;
}

TEST(Airports, AreFoundByTheStartOfAnyWord) {
    const std::vector<std::pair<const char*, std::vector<std::string>>> queries{
        {"ktm", {"KTM"}},
        {"kath", {"KTM"}},
        {"athmandu", {}},
        {"tenzing", {"LUA"}},
        {"hill", {"LUA"}},
        {"new y", {"JFK"}},
        {"SAO", {"GRU"}},
        {"São", {"GRU"}},
        {"zuri", {"ZRH"}},
        {"qatar", {"DOH"}},
        {"bangk", {"BKK", "DMK"}},
        {"xyz", {}},
        {"han", {"HAN", "HND"}},
        {"male", {"MLE"}},
    };
    for (const auto& [query, expected] : queries)
        EXPECT_EQ(codes(searchAirports(query)), expected) << query;
    EXPECT_EQ(searchAirports("").size(), 12U);
    EXPECT_EQ(searchAirports("").front()->code, "KTM");
}

TEST(Airports, AreManyAndTheirCodesDiffer) {
    std::set<std::string_view> all;
    std::set<std::string_view> countries;
    int domestic = 0;
    for (const Airport& airport : airports()) {
        all.insert(airport.code);
        countries.insert(airport.country);
        domestic += airport.isDomestic() ? 1 : 0;
    }
    EXPECT_EQ(all.size(), airports().size());
    EXPECT_GE(all.size(), 60U);
    EXPECT_GE(countries.size(), 25U);
    EXPECT_GE(domestic, 10);
    std::set<std::string> nations;
    for (const Json& country : countriesJson())
        nations.insert(country["name"].get<std::string>());
    for (std::string_view country : countries)
        EXPECT_TRUE(nations.contains(std::string(country))) << country;
}

TEST(Distance, IsTheGreatCircle) {
    EXPECT_NEAR(distance(*airportOf("LHR"), *airportOf("JFK")), 5540, 15);
    EXPECT_NEAR(distance(*airportOf("KTM"), *airportOf("PKR")), 144, 5);
}

TEST(Lookups, DemandTheTokenAndItsUserType) {
    ServiceClient client(frozenOptions());
    EXPECT_EQ(client.get("/countries?user_type=customer")["data"]["countries"].size(),
              countriesJson().size());
    EXPECT_EQ(client.get("/search-airports?q=pok&user_type=customer")["data"]["airports"],
              Json::array({{{"name", "Pokhara International Airport"},
                            {"city", "Pokhara"},
                            {"code", "PKR"},
                            {"country", "Nepal"}}}));
    EXPECT_EQ(ServiceClient::error(client.get("/countries")), "The user_type is not the one of the token.");
    const WireAnswer stranger = client.send(
        {"GET", "/api/b2b/v2/countries?user_type=customer", {"Authorization: Bearer 0123456789"}, ""});
    EXPECT_EQ(stranger.status(), 401);
    EXPECT_EQ(ServiceClient::error(Json::parse(stranger.body())), "Unauthenticated.");
}

TEST(Search, SaysWhatIsWrongWithABody) {
    struct Case {
        std::function<void(Json&)> change;
        const char* error;
    };
    const auto set = [](const char* key, const Json& value) {
        return [=](Json& body) { body[key] = value; };
    };
    const std::vector<Case> wrong{
        {[](Json& body) { body.erase("nationality"); }, "The nationality field is missing."},
        {set("return_date", "2026-03-14"), "The return_date field is not known here."},
        {set("trip_type", "round"), "The return_date field is missing."},
        {set("trip_type", "round_special"), "The trip_type field must be oneway or round."},
        {set("user_type", "agent"), "The user_type is not the one of the token."},
        {set("adults", "1"), "The adults field must be a whole number."},
        {set("adults", 1.0), "The adults field must be a whole number."},
        {set("adults", 0), "The adults field must be between 1 and 9."},
        {set("children", 9), "At most 9 people can travel together."},
        {set("infants", 2), "Every infant needs an adult."},
        {set("dest_city", "Doha"), "There is no airport Doha."},
        {set("dest_city", "KTM"), "The origin and the destination are the same."},
        {set("depart_date", "10/03/2026"), "The depart_date field must be a date like 2026-03-01."},
        {set("depart_date", "2026-02-29"), "The depart_date field must be a date like 2026-03-01."},
        {set("depart_date", "2026-02-28"), "The departure date has passed."},
        {set("flight_class", "Y"), "The flight_class field must be empty or one of M, W, C and F."},
        {set("nationality", "Nepalese"), "The nationality field must be a country's short_name."},
        {set("dest_city", "LYR"), "Sorry! No flight recommendations found."},
        {[](Json& body) { body["depart_city"] = "DOP", body["dest_city"] = "PKR"; },
         "Sorry! No flight recommendations found."},
        {[](Json& body) { body["dest_city"] = "PKR", body["flight_class"] = "F"; },
         "Sorry! No flight recommendations found."},
        {[](Json& body) { body = Json::array(); }, "The request body must be a JSON object."},
    };
    ServiceClient client(frozenOptions());
    for (const Case& scenario : wrong) {
        Json body = searchBody("KTM", "DOH");
        scenario.change(body);
        EXPECT_EQ(ServiceClient::error(client.post("/search-flights", body)), scenario.error) << body;
    }
    EXPECT_EQ(ServiceClient::error(client.post("/search-flights", searchBody("KTM", "DOH"))), "");
}

TEST(Search, IsTheSameFromOneSeedAndAnotherFromTheNext) {
    const auto answer = [](std::uint64_t seed) {
        Options options = frozenOptions();
        options.seed = seed;
        ServiceClient client(options);
        std::string text = client.post("/search-flights", roundBody("KTM", "LHR")).dump();
        const std::string& address = client.sandbox().address();
        for (std::size_t at; (at = text.find(address)) != std::string::npos;)
            text.erase(at, address.size());
        return text;
    };
    const std::string first = answer(7);
    EXPECT_EQ(first, answer(7));
    EXPECT_NE(first, answer(8));
}

TEST(Search, GivesPlausiblePricesAndTimes) {
    struct Case {
        const char* from;
        const char* to;
        std::int64_t least; ///< of an adult's economy fare
        std::int64_t most;
        std::size_t legs;
    };
    ServiceClient client(frozenOptions());
    for (const Case& route : {Case{"KTM", "PKR", 3'000, 9'000, 1},
                              Case{"JKR", "BDP", 3'000, 12'000, 2},
                              Case{"KTM", "DEL", 12'000, 60'000, 2},
                              Case{"KTM", "DOH", 15'000, 60'000, 3},
                              Case{"KTM", "LHR", 70'000, 200'000, 3},
                              Case{"JKR", "SYD", 80'000, 200'000, 3}}) {
        SCOPED_TRACE(std::string(route.from) + route.to);
        Json body = searchBody(route.from, route.to);
        body["flight_class"] = "M";
        const Json offers = client.post("/search-flights", body)["data"];
        EXPECT_GE(offers.size(), 12U);
        EXPECT_LE(offers.size(), 60U);
        for (const Json& offer : offers) {
            EXPECT_GE(offer["fare_information"]["total_cost"], route.least);
            EXPECT_LE(offer["fare_information"]["total_cost"], route.most);
            const Json& segments = offer["flight_summary"]["segments"];
            ASSERT_GE(segments.size(), 1U);
            EXPECT_LE(segments.size(), route.legs);
            EXPECT_EQ(segments.front()["locationDeparture"], route.from);
            EXPECT_EQ(segments.back()["locationArrival"], route.to);
            EXPECT_EQ(segments.back()["connection_time"], false);
            for (std::size_t i = 0; i + 1 < segments.size(); ++i) {
                EXPECT_EQ(segments[i]["locationArrival"], segments[i + 1]["locationDeparture"]);
                EXPECT_TRUE(segments[i]["connection_time"].is_string());
            }
        }
    }
}

TEST(Search, GivesLocalTimesThatFitTheTimeInTheAir) {
    const auto instant = [](const Json& zoned) {
        std::string text = zoned.get<std::string>();
        return parseInstant(text.erase(text.find(".000"), 4)).value();
    };
    ServiceClient client(frozenOptions());
    const Json offers = client.post("/search-flights", searchBody("KTM", "LAX"))["data"];
    int legs = 0;
    for (const Json& offer : offers)
        for (const Json& leg : offer["flight_summary"]["segments"]) {
            if (!leg.contains("segment_details")) continue;
            const auto time = instant(leg["timeOfArrivalSystem"]) - instant(leg["timeOfDepartureSystem"]);
            EXPECT_EQ(std::to_string(time / std::chrono::minutes(1)),
                      leg["segment_details"]["attributes"]["FlightTime"].get<std::string>());
            ++legs;
        }
    EXPECT_GT(legs, 20);
}

TEST(Search, OffersNoWayBackBeforeTheWayOutArrives) {
    ServiceClient client(frozenOptions());
    Json body = roundBody("KTM", "AKL");
    body["return_date"] = body["depart_date"];
    EXPECT_EQ(ServiceClient::error(client.post("/search-flights", body)),
              "Sorry! No flight recommendations found.");
    body["dest_city"] = "DEL";
    const Json offers = client.post("/search-flights", body)["data"];
    EXPECT_FALSE(offers.empty());
    for (const Json& offer : offers) {
        EXPECT_EQ(offer["flight_departure_summary"]["dateOfArrival"], "2026-03-10");
        EXPECT_LT(offer["flight_departure_summary"]["timeOfArrival"],
                  offer["flight_return_summary"]["timeOfDeparture"]);
    }
}

TEST(Clock, RunsOrStandsAndIsTurnedByHand) {
    const Instant start = parseInstant("2026-03-01T12:00:00Z").value();
    ServiceClock running(start, false);
    ServiceClock standing(start, true);
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    running.advance(std::chrono::seconds(60));
    standing.advance(std::chrono::seconds(60));
    EXPECT_GT(running.now(), start + std::chrono::seconds(60));
    EXPECT_EQ(standing.now(), start + std::chrono::seconds(60));
}

TEST(Search, HonoursCabinTravellersAndTheNumberOfOffers) {
    Options options = frozenOptions();
    options.offers = 150;
    ServiceClient client(options);
    Json body = searchBody("KTM", "BKK");
    body["flight_class"] = "C";
    body["adults"] = 2;
    body["children"] = 1;
    const Json offers = client.post("/search-flights", body)["data"];
    ASSERT_EQ(offers.size(), 150U);
    for (const Json& offer : offers) {
        EXPECT_EQ(offer["search_summary"]["booking_class"], "C");
        const Json& fare = offer["fare_information"];
        if (!fare.contains("total_adt")) continue;
        EXPECT_EQ(fare["total_cost"], fare["total_adt"].get<int>() + fare["total_chd"].get<int>());
        EXPECT_EQ(fare["total_inf"], 0);
        EXPECT_NEAR(fare["total_chd"].get<double>(), fare["total_adt"].get<double>() / 2 * 0.75, 1);
    }
}

} // namespace

} // namespace ombrivane::sandbox
