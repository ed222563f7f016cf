#include "services/FlightAvailabilityProvider.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/FlightSearchRoundTripProvider.h"
#include "services/Outcome.h"
#include "services/ServiceFixture.h"

namespace ombrivane {
namespace {

using SpecialRoundFlights = FlightSearchRoundTripProvider::SpecialRoundFlights;

class FlightSearchTest : public ServiceFixture {
protected:
    static FlightQuery query(const std::string& adults = "1") {
        FlightQuery query;
        query.adults = adults;
        query.children = "0";
        query.infants = "0";
        return query;
    }

    OneWayOffers searched(const std::string& answer) {
        OneWayOffers offers;
        FlightSearchOneWayProvider().searchFlights(
            query(), [&](OneWayOffers found, const std::optional<Error>&) { offers = std::move(found); });
        world.answer(answer);
        return offers;
    }
};

TEST_F(FlightSearchTest, AnOfferTravelsBackByteForByte) {
    const std::string offer = fakes::captured("search-oneway").at("data").at(0).dump();
    // Written in its own way: escapes, numbers with a fraction, keys that no field reads, strange order.
    std::string peculiar = offer;
    peculiar.replace(peculiar.find("\"cashBack\":203"), 14, R"("cashBack":2.030e2)");
    peculiar.replace(peculiar.find("\"seats_left\""), 12, R"("\u0073eats\t\/\"]},[{":[ ],"seats_left")");
    std::string bare = peculiar;
    bare.erase(bare.find("[ ]") + 1, 1);
    const std::string answers[] = {
        // Of two keys alike the first counts.
        "{\"success\":true,\"x\":{\"data\":[1]},\"y\":[\"data\"],\"\\\"data\":[2],\"data\":[" + peculiar +
            "],\"data\":[3]}",
        "{\"success\":true,\"data\":[" + peculiar + "]}",
        " { \"data\" : [\n" + peculiar + " ] , \"data2\":[1], \"success\" : true } ",
        "{\"success\":true,\"dat\\u0061\":[" + peculiar + "]}",
    };
    for (const auto& answer : answers) {
        const auto offers = searched(answer);
        ASSERT_EQ(offers.size(), 1U) << answer;
        OWFlightAvailabilityProvider().fetchAvailability(
            "oneway", AnyFlight(offers.front()), [](const auto&, const auto&) {});
        EXPECT_EQ(world.network->last().body,
                  R"({"user_type":"customer","itinerary_type":"oneway","itinerary":)" + bare + "}");
        world.network->answer("{}");
    }
}

/// An empty list would be a success: each of these must not pass for one.
TEST_F(FlightSearchTest, AnAnswerThatIsAlmostJsonIsRefused) {
    const std::string good = R"({"success":true,"data":[],"x":[{"y":[1,2]}]})";
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"[]", " [ ] "},
        {"\"x\"", "\"data\""}, // the first counts
        {R"("success":true,)", R"("success":true,"success":7,)"},
        {"true", "t rue"},
        {"true,", "true "},
        {"true,", "true,,"},
        {"true,", "true;"},
        {"true", "truely"},
        {"true", "tru"},
        {"[]", "[,]"},
        {"[]", "[ 1 2 ]"},
        {"[]", "[]]"},
        {"[]", "[}"},
        {"[]", "{]"},
        {"[],", "[] 7,"},
        {"[],", "[]"},
        {"\"data\":", "\"data\" "},
        {"\"data\":", "\"data\"::"},
        {"\"data\"", "data"},
        {"\"x\":", "x:"},
        {"\"x\":", "\"\\x\":"},
        {"\"x\":", "\"\\ud800\":"},
        {"1,2", "1 2"},
        {"1,2", "1,2,"},
        {"1,2", "01"},
        {"1,2", "1.e2"},
        {"]}]}", "]}]"},
        {"]}]}", "]}]}}"},
        {"]}]}", "]}]} {}"},
        {"]}]}", "]}],}"},
        {"]}]}", "]]}}"},
        {"{\"success", "{{\"success"},
        {"{\"success", "{,\"success"},
        {"{\"success", "\xef\xbb\xbf[\"success"},
    };
    std::size_t row = 0;
    for (const auto& [part, by] : rows) {
        std::string answer = good;
        answer.replace(answer.find(part), part.size(), by);
        Outcome outcome;
        FlightSearchOneWayProvider().searchFlights(query(), into<OneWayOffers>(outcome));
        world.answer(answer);
        EXPECT_EQ(outcome.completions, 1);
        EXPECT_EQ(outcome.error.has_value(), row++ > 3) << answer;
    }
}

TEST_F(FlightSearchTest, OneUndecodableOfferLosesTheList) {
    Json answer = fakes::captured("search-oneway");
    answer["data"].back()["flight_summary"]["segments"].back()["connection_time"] = 5;
    Outcome outcome;
    FlightSearchOneWayProvider().searchFlights(query(), into<OneWayOffers>(outcome));
    world.answer(answer.dump());
    EXPECT_EQ(outcome.result, Json::array());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->localizedDescription, "Wrong type for ConnectionTime");
    EXPECT_EQ(outcome.error->developerDescription,
              "data[1].flight_summary.segments[1].connection_time: Wrong type for ConnectionTime");
}

TEST_F(FlightSearchTest, TheSpecialRoundWantsTwoLists) {
    const Json captured = fakes::captured("search-special").at("data");
    const auto answer = [](const Json& data) { return Json{{"success", true}, {"data", data}}; };
    Json broken = captured;
    broken[1][0].erase("fare_information");
    const struct {
        Json data;
        const char* failure; ///< of the developer; none when both lists come
    } rows[] = {
        {Json::array({Json::array(), Json::array()}), nullptr},
        {Json::array({captured[0], Json::array(), Json::array()}), nullptr},
        {Json::array({captured[0], Json::array(), 7}), "data[2]: wants an array"},
        {Json::array({captured[0], Json::array(), Json::array({7})}), "data[2]: wants objects"},
        {Json::array({Json::array()}), "data: lacks its list 1"},
        {Json::array({captured[0], Json::object()}), "data[1]: wants an array"},
        {captured[0], "data[0]: wants an array"},
        {broken, "data[1][0].fare_information: is missing"},
    };
    for (const auto& row : rows) {
        Outcome outcome;
        FlightSearchRoundTripProvider().searchSpecialRoundFlights(query(),
                                                                  into<SpecialRoundFlights>(outcome));
        world.answer(answer(row.data).dump());
        ASSERT_EQ(outcome.result.size(), 2U);
        EXPECT_EQ(outcome.error.has_value(), row.failure != nullptr);
        if (!outcome.error) continue;
        EXPECT_EQ(outcome.error->developerDescription, row.failure);
        EXPECT_TRUE(outcome.result["departureFlights"].empty());
        EXPECT_TRUE(outcome.result["returnFlights"].empty());
    }
}

TEST_F(FlightSearchTest, OffersOfASpecialRoundCarryNoRawData) {
    SpecialRoundFlights flights;
    FlightSearchRoundTripProvider().searchSpecialRoundFlights(
        query(), [&](SpecialRoundFlights found, const std::optional<Error>&) { flights = std::move(found); });
    world.answer(fakes::captured("search-special").dump());
    ASSERT_FALSE(flights.departureFlights.empty() || flights.returnFlights.empty());
    EXPECT_FALSE(flights.departureFlights.front()->rawData);
    EXPECT_FALSE(flights.returnFlights.front()->rawData);
}

TEST_F(FlightSearchTest, ACountThatIsNoNumberIsAFault) {
    for (const char* adults : {"", "two", "2 ", " 2", "2.0", "0x2", "99999999999999999999"}) {
        Outcome outcome;
        EXPECT_FALSE(guarded([&] {
            FlightSearchOneWayProvider().searchFlights(query(adults), into<OneWayOffers>(outcome));
        })) << adults;
        EXPECT_EQ(world.takeFaults().size(), 1U) << adults;
        EXPECT_TRUE(world.network->sent().empty());
        EXPECT_EQ(outcome.completions, 1) << "nobody waits for ever";
    }
}

} // namespace
} // namespace ombrivane
