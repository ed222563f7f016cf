#include "sandbox/control/Scenarios.h"
#include "tests/sandbox/BookingFixture.h"

#include <cmath>

namespace ombrivane::sandbox {
namespace {

class ScenarioTest : public BookingFixture {
protected:
    void play(const std::vector<std::string>& names) { client_.sandbox().setScenarios(names); }
    std::int64_t priced(const Json& offer) {
        return availability(offer).at("data").at("fareInformation").at("total_cost").get<std::int64_t>();
    }
    Json reserve(const Json& opened, const Json& passengers) {
        return client_.post("/reservation", reservationBody(opened, passengers));
    }
};

TEST_F(ScenarioTest, EachBringsAboutWhatItSays) {
    const Json offer = client_.post("/search-flights", searchBody("KTM", "DOH")).at("data").at(0);
    const auto offered =
        static_cast<std::int64_t>(offer.at("fare_information").at("total_cost").get<double>());
    EXPECT_EQ(priced(offer), offered);
    play({"dearer"});
    EXPECT_GT(priced(offer), offered);
    play({"cheaper", "no-flights"});
    EXPECT_LT(priced(offer), offered);
    EXPECT_EQ(client_.post("/search-flights", searchBody("KTM", "DOH")).at("success"), false) << "both";
    play({"sold-out"});
    EXPECT_EQ(availability(offer).at("success"), false);
    play({});
    EXPECT_EQ(priced(offer), offered) << "none is left";

    EXPECT_THROW(play({"dearer", "unheard-of"}), std::invalid_argument);
    EXPECT_EQ(priced(offer), offered) << "nothing changes where one does not exist";
}

TEST_F(ScenarioTest, BeforeTheStartHoldAfterItAsWell) {
    // Options and `play` alike; whoever starts again meets what was in force.
    Options options = frozenOptions();
    options.scenarios = {"cheaper"};
    const auto percent = [](ServiceClient& client) {
        const Json offer = client.post("/search-flights", searchBody("KTM", "DOH")).at("data").at(0);
        const Json priced = client.post(
            "/availability", {{"user_type", "customer"}, {"itinerary_type", "oneway"}, {"itinerary", offer}});
        const auto offered = offer.at("fare_information").at("total_cost").get<double>();
        return std::lround(100 * priced.at("data").at("fareInformation").at("total_cost").get<double>() /
                           offered);
    };
    ServiceClient client(options);
    EXPECT_EQ(percent(client), 93);
    client.sandbox().stop();
    client.sandbox().setScenarios({"dearer"});
    client.sandbox().start();
    client.renewToken();
    EXPECT_EQ(percent(client), 107);
    client.sandbox().stop();
    client.sandbox().start();
    client.renewToken();
    EXPECT_EQ(percent(client), 107);

    options.scenarios = {"unheard-of"};
    EXPECT_THROW(Sandbox{options}, std::invalid_argument);
}

TEST_F(ScenarioTest, APriceThatIsHeldForAMinuteIsNotReservedAfterIt) {
    play({"expires-soon"});
    const Json opened = openFamilyBooking();
    client_.sandbox().advanceClock(std::chrono::seconds(59));
    EXPECT_EQ(reserve(opened, family()).at("success"), true);
    client_.sandbox().advanceClock(std::chrono::seconds(2));
    EXPECT_EQ(reserve(opened, family()).at("success"), false);
}

TEST_F(ScenarioTest, ASurnameBringsItAboutForItsBookingAlone) {
    for (const char* surname : {"Seats-Gone", "seats gone", "SEATSGONE"}) {
        Json passengers = family();
        passengers[1]["last_name"] = surname;
        const Json opened = openFamilyBooking();
        EXPECT_EQ(reserve(opened, passengers).at("success"), false) << surname;
        EXPECT_EQ(reserve(opened, family()).at("success"), true) << surname;
    }
    const auto inForce = [this] { return client_.send({"GET", "/sandbox/faults", {}, ""}).body(); };
    const std::string before = inForce();
    Json lost = family();
    lost[1]["last_name"] = "Documents Lost";
    lost[0]["document_type"] = "diary";
    EXPECT_EQ(reserve(openFamilyBooking(), lost).at("success"), false);
    EXPECT_EQ(inForce(), before) << "a reservation that is refused arms nothing for later";
    lost[0]["document_type"] = "passport";
    EXPECT_EQ(reserve(openFamilyBooking(), lost).at("success"), true);
    const std::string armed = inForce();
    EXPECT_NE(armed, before);
    EXPECT_EQ(reserve(openFamilyBooking(), lost).at("success"), true);
    EXPECT_EQ(inForce(), armed) << "what is armed is not armed twice";

    Json sold = family();
    sold[0]["last_name"] = "Soldout"; // happens before there is a traveller
    EXPECT_EQ(reserve(openFamilyBooking(), sold).at("success"), true);
    for (const char* body :
         {"", "[]", "{}", R"({"passengers":7})", R"({"passengers":[7,{"last_name":7},{}]})"})
        EXPECT_EQ(scenarioOfTravellers(body), nullptr) << body;
}

} // namespace
} // namespace ombrivane::sandbox
