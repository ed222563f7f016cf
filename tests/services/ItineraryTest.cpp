#include "services/ClientCall.h"
#include "services/FlightAvailabilityProvider.h"
#include "services/FlightsSummarySlots.h"
#include "services/RestrictionProvider.h"
#include "services/ServiceFixture.h"

namespace ombrivane {
namespace {

using fakes::captured;

class ItineraryTest : public ServiceFixture {
protected:
    static AnyFlight withRawData(const std::optional<std::string>& json) {
        auto offer = std::make_shared<FlightSearchOneWay>(capturedOneWay().oneWay());
        offer->rawData.reset();
        if (json) {
            const auto bytes = std::make_shared<std::string>(*json);
            offer->rawData = RawData(bytes, *bytes);
        }
        return AnyFlight(std::shared_ptr<const FlightSearchOneWay>(offer));
    }

    void askOneWay(Outcome& outcome, const AnyFlight& flight = capturedOneWay()) {
        OWFlightAvailabilityProvider().fetchAvailability(
            "oneway", flight, into<std::optional<OWFlightAvailability>>(outcome));
    }

    void askRound(Outcome& outcome) {
        RTFlightAvailabilityProvider().fetchAvailability(
            "round", capturedRoundTrip(), into<std::optional<RTFlightAvailability>>(outcome));
    }
};

TEST_F(ItineraryTest, RawDataThatIsNoObjectGoesOutAsNull) {
    const std::string failed = "Failed to convert Data back to JSON 😢";
    const std::string wrong = "Something went wrong during JSON deserialization: ";
    const struct {
        std::optional<std::string> rawData;
        std::string sent;
        std::vector<std::string> diagnostics;
    } rows[] = {
        {std::nullopt, "null", {}},
        {"[{}]", "null", {failed}},
        {"\"text\"", "null", {wrong}},
        {"null", "null", {wrong}},
        {"{\"a\":", "null", {wrong}},
        {"", "null", {wrong}},
        {R"( { "a" : 1.50 } )", R"({"a":1.50})", {R"(Converted back to JSON: {"a":1.50})"}},
    };
    for (const auto& row : rows) {
        world.diagnostics->lines.clear();
        Outcome outcome;
        askOneWay(outcome, withRawData(row.rawData));
        EXPECT_EQ(world.network->last().body,
                  R"({"user_type":"customer","itinerary_type":"oneway","itinerary":)" + row.sent + "}");
        ASSERT_EQ(world.diagnostics->lines.size(), row.diagnostics.size());
        for (std::size_t i = 0; i < row.diagnostics.size(); ++i) {
            EXPECT_TRUE(world.diagnostics->lines[i].starts_with(row.diagnostics[i]))
                << world.diagnostics->lines[i];
        }
        world.network->answer(R"({"success":false,"data":{"error":"no"}})");
        EXPECT_EQ(outcome.error->localizedDescription, "no") << "the service decides";
    }
}

TEST_F(ItineraryTest, AnOfferThatCannotBeWrittenIsNotAskedForThoughItsOwnJsonCould) {
    FlightSearchOneWay offer = withRawData("{}").oneWay();
    offer.flightSummary.timeOfDeparture = "\xff";
    Outcome outcome;
    askOneWay(outcome, AnyFlight(std::make_shared<const FlightSearchOneWay>(std::move(offer))));
    EXPECT_EQ(world.network->outstanding(), 0U);
    EXPECT_EQ(outcome.error.value_or(Error{}).domain, errorDomain::encoding);
}

TEST_F(ItineraryTest, AvailabilitiesFillTheSlotOfTheirKind) {
    const auto carrierOf = [](const auto& summary) { return summary ? summary->carrierName : "none"; };
    const auto slots = [&] { return carrierOf(owFlightsSummary()) + " " + carrierOf(rtFlightsSummary()); };
    const auto answerNaming = [](const char* file, const char* carrier) {
        Json answer = captured(file);
        answer["data"]["flightsSummary"]["carrierName"] = carrier;
        return answer.dump();
    };
    Outcome outcome;
    EXPECT_EQ(slots(), "none none");
    askOneWay(outcome);
    world.answer(answerNaming("availability-oneway", "A"));
    EXPECT_EQ(slots(), "A none");
    askRound(outcome);
    world.diagnostics->lines.clear();
    const std::string round = answerNaming("availability-round", "B");
    world.answer(round);
    EXPECT_EQ(slots(), "A B");
    EXPECT_EQ(world.diagnostics->lines, std::vector{Json::parse(round).at("data").dump()})
        << "the whole record is printed";

    askOneWay(outcome);
    world.answer(answerNaming("availability-oneway", "C"));
    EXPECT_EQ(slots(), "C B");
    world.diagnostics->lines.clear();
    RTFlightAvailabilityProvider().fetchAvailability("round_special",
                                                     capturedOneWay(),
                                                     capturedOneWay(),
                                                     into<std::optional<RTFlightAvailability>>(outcome));
    world.answer(answerNaming("availability-special", "D"));
    EXPECT_EQ(outcome.result.at("flightsSummary").at("carrierName"), "D");
    EXPECT_EQ(slots(), "C B") << "a special round writes neither";
    EXPECT_TRUE(world.diagnostics->lines.empty());
    askOneWay(outcome);
    world.answer(R"({"success":true,"data":{}})");
    EXPECT_TRUE(outcome.error);
    EXPECT_EQ(slots(), "C B") << "nor does a failure";
}

TEST_F(ItineraryTest, CountsOfTravellersBeyondReasonAreRefused) {
    for (const char* key : {"numberAdult", "numberChild", "numberInfant"}) {
        for (const std::int64_t count : {std::int64_t{-1}, std::int64_t{1001}, std::int64_t{1} << 52}) {
            for (const bool round : {false, true}) {
                Json answer = captured(round ? "availability-round" : "availability-oneway");
                answer["data"]["availabilitySummary"][key] = count;
                Outcome outcome;
                round ? askRound(outcome) : askOneWay(outcome);
                world.answer(answer.dump());
                EXPECT_TRUE(outcome.error) << key << " " << count;
            }
        }
    }
    EXPECT_FALSE(owFlightsSummary() || rtFlightsSummary());
}

TEST_F(ItineraryTest, RestrictionsStandBesideSuccess) {
    const struct {
        const char* answer;
        Json message;
        const char* failure; ///< of the developer
    } rows[] = {
        {R"({"success":true,"hasRestrictions":false})", nullptr, nullptr},
        {R"({"success":true,"hasRestrictions":false,"message":"<p>x</p>"})", nullptr, nullptr},
        {R"({"success":true,"hasRestrictions":true,"message":""})", "", nullptr},
        {R"({"success":true,"hasRestrictions":true,"message":"<p>x</p>"})", "<p>x</p>", nullptr},
        {R"({"success":true,"data":{"hasRestrictions":true,"message":"x"}})",
         nullptr,
         "hasRestrictions: is missing"},
        {R"({"success":true,"hasRestrictions":1})", nullptr, "hasRestrictions: wants true or false"},
        {R"({"success":true,"hasRestrictions":true})", nullptr, "message: is missing"},
        {R"({"success":true,"hasRestrictions":true,"message":null})", nullptr, "message: wants a text"},
    };
    for (const auto& row : rows) {
        Outcome outcome;
        OWRestrictionProvider().fetchRestrictions(
            "oneway", capturedOneWay(), into<std::optional<std::string>>(outcome));
        world.answer(row.answer);
        EXPECT_EQ(outcome.result, row.message) << row.answer;
        EXPECT_EQ(outcome.error ? outcome.error->developerDescription : "",
                  row.failure != nullptr ? row.failure : "");
    }
}

TEST_F(ItineraryTest, AFlightOfTheOtherKindIsAFault) {
    const std::function<void()> wrong[] = {
        [] {
            OWFlightAvailabilityProvider().fetchAvailability(
                "oneway", capturedRoundTrip(), [](auto, auto) {});
        },
        [] {
            RTFlightAvailabilityProvider().fetchAvailability("round", capturedOneWay(), [](auto, auto) {});
        },
        [] {
            RTFlightAvailabilityProvider().fetchAvailability(
                "round_special", capturedOneWay(), capturedRoundTrip(), [](auto, auto) {});
        },
        [] { OWRestrictionProvider().fetchRestrictions("oneway", capturedRoundTrip(), [](auto, auto) {}); },
        [] { RTRestrictionProvider().fetchRestrictions("round", capturedOneWay(), [](auto, auto) {}); },
        [] {
            RTRestrictionProvider().fetchRestrictions(
                "round_special", capturedRoundTrip(), capturedOneWay(), [](auto, auto) {});
        },
    };
    for (const auto& call : wrong) {
        EXPECT_FALSE(guarded(call));
        EXPECT_EQ(world.takeFaults().size(), 1U);
    }
    EXPECT_TRUE(world.network->sent().empty());
}

} // namespace
} // namespace ombrivane
