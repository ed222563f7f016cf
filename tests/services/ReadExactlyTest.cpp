#include "services/ClientCall.h"
#include "services/FlightAvailabilityProvider.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/ServiceFixture.h"

namespace ombrivane {
namespace {

/// What an answer is besides its values: nothing may be added to it, and nothing of it is lost.
class ReadExactlyTest : public ServiceFixture {
protected:
    Outcome read(const ClientCall& call, const std::string& bytes) {
        Outcome outcome;
        call.start(outcome);
        world.network->answer(bytes);
        EXPECT_EQ(outcome.completions, 1) << call.name;
        return outcome;
    }
};

/// Each object of the text with these members at its beginning.
std::string withMembers(const std::string& json, const std::string& members) {
    std::string result;
    for (std::size_t at = 0; at < json.size(); ++at) {
        result += json[at];
        if (json[at] == '{' && json[at + 1] == '"') result += members + ',';
    }
    return result;
}

TEST_F(ReadExactlyTest, NothingStandsBesideTheAnswer) {
    const std::string answers[] = {
        "",
        " ",
        "\xef\xbb\xbf",
        R"({"success":true,"data":[]x})",
        R"({"success":true,"data":[]]})",
        R"({"success":true,"data":[],})",
        R"({"success":true,"data":[]}x)",
        R"({"success":true,"data":[]} {})",
        R"({"success":true,"data":[,]})",
        R"({"success":true,"data":[],"message":"","hasRestrictions":false,,})",
        R"({"success":true,"hasRestrictions":false,"data":{}x})",
        R"({"success":true,"hasRestrictions":false,"data":[x]})",
        R"({"success":true,"hasRestrictions":false,"data":[{}x]})",
        R"({"success":true,"hasRestrictions":false,"data":[[],[],x]})",
        R"({"success":true,"hasRestrictions":false,"data":[] "a":1})",
        R"({},"success":true,"hasRestrictions":false,"data":[[],[]]})",
        R"({,"success":true,"hasRestrictions":false,"data":[[],[]]})",
    };
    for (const ClientCall& call : clientCalls()) {
        for (const std::string& bytes : answers)
            EXPECT_TRUE(read(call, bytes).error) << call.name << ": " << bytes;
    }
}

TEST_F(ReadExactlyTest, AByteOrderMarkIsPassedOver) {
    for (const ClientCall& call : clientCalls()) {
        const std::string bytes = fakes::captured(call.answer).dump();
        const Outcome outcome = read(call, "\xef\xbb\xbf" + bytes);
        EXPECT_FALSE(outcome.error) << call.name << ": " << outcome.error->developerDescription;
        EXPECT_EQ(outcome.result, call.result) << call.name;
        EXPECT_TRUE(read(call, "\xef\xbb" + bytes).error) << call.name;
        EXPECT_TRUE(read(call, "\xef\xbb\xbf\xef\xbb\xbf" + bytes).error) << call.name;
    }
}

TEST_F(ReadExactlyTest, AHugeNumberMattersToNobodyButItsReader) {
    const std::string members =
        R"("one":123456789012345678901234567890,"two":[-1e400,{"three":-9223372036854775809}],)"
        R"("four":"1e400\"","five":1.5E+9999)";
    for (const ClientCall& call : clientCalls()) {
        const std::string bytes = withMembers(fakes::captured(call.answer).dump(), members);
        const Outcome outcome = read(call, bytes);
        EXPECT_FALSE(outcome.error) << call.name << ": " << outcome.error->developerDescription;
        EXPECT_EQ(outcome.result, call.result) << call.name;
    }
    const struct {
        const char* call;
        const char* answer;
        const char* error;
    } read_[] = {
        {"search_oneway", R"({"success":true,"data":[1e400]})", "data[0]: wants an object"},
        {"search_oneway", R"({"success":true,"data":1e400})", "data: wants an array"},
        {"search_oneway", R"({"success":1e400,"data":[]})", "success: wants true or false"},
        {"restrictions_oneway",
         R"({"success":true,"hasRestrictions":true,"message":99999999999999999999})",
         "message: wants a text"},
        {"airports",
         R"({"success":true,"data":{"airports":[{"name":"","city":"","code":1e999}]}})",
         "data.airports[0].code: wants a text"},
        {"airports",
         R"({"success":true,"data":{"airports":99999999999999999999}})",
         "data.airports[0]: wants an object"},
        {"countries",
         R"({"success":true,"data":{"countries":[{"id":99999999999999999999,"name":"",)"
         R"("nationality":"","short_name":"","country_code":""}]}})",
         "data.countries[0].id: wants a whole number"},
    };
    for (const auto& row : read_) {
        for (const ClientCall& call : clientCalls()) {
            if (call.name != row.call) continue;
            const Outcome outcome = read(call, row.answer);
            ASSERT_TRUE(outcome.error) << row.answer;
            EXPECT_EQ(outcome.error->developerDescription, row.error);
        }
    }
}

TEST_F(ReadExactlyTest, AnOfferGoesBackWithTheHugeNumbersItCameWith) {
    const std::string members = R"("one":123456789012345678901234567890,"two":-1.50e+400)";
    const std::string offer = withMembers(fakes::captured("search-oneway").at("data").at(0).dump(), members);
    OneWayOffers offers;
    FlightQuery query;
    query.departDate = Day::parse("2026-04-10").value();
    query.adults = query.children = query.infants = "1";
    FlightSearchOneWayProvider().searchFlights(
        query, [&](OneWayOffers found, const std::optional<Error>&) { offers = std::move(found); });
    world.network->answer(R"({"success":true,"data":[ )" + offer + " ]}");
    ASSERT_EQ(offers.size(), 1U);
    OWFlightAvailabilityProvider().fetchAvailability(
        "oneway", AnyFlight(offers.front()), [](const auto&, const auto&) {});
    EXPECT_EQ(world.network->waiting().body,
              R"({"user_type":"customer","itinerary_type":"oneway","itinerary":)" + offer + "}");
}

TEST_F(ReadExactlyTest, ATokenOfMoreThanOneLineIsNotSent) {
    using namespace std::string_literals;
    for (const std::string& token : {"a\r\nX: y"s, "a\n"s, "\r"s, "a\0b"s}) {
        AppState::shared().accessToken = token;
        for (const ClientCall& call : clientCalls()) {
            if (call.name == "token") continue; // goes without
            Outcome outcome;
            call.start(outcome);
            EXPECT_EQ(world.network->outstanding(), 0U) << call.name;
            EXPECT_EQ(outcome.completions, 1) << call.name;
            EXPECT_EQ(outcome.result, call.empty) << call.name;
            ASSERT_TRUE(outcome.error) << call.name;
            EXPECT_EQ(outcome.error->developerDescription, "Authorization: more than one line");
        }
    }
}

} // namespace
} // namespace ombrivane
