#include "services/ClientCall.h"
#include "services/AuthenticationProvider.h"
#include "services/ServiceFixture.h"

#include <regex>

namespace ombrivane {
namespace {

using fakes::captured;
using Headers = std::vector<std::pair<std::string, std::string>>;

class ClientCallTest : public ServiceFixture {
protected:
    std::vector<std::string> takeFailedCalls() { return std::exchange(world.diagnostics->failedCalls, {}); }

    /// What the diagnostics are to hear of a call that failed in this way.
    static std::string lineOf(const ClientCall& call, const std::optional<Error>& error) {
        const std::string line = call.target.substr(0, call.target.find('?')) + " failed: ";
        if (!error) return line + "Network 0, neither an answer nor an error";
        const std::string known = line + error->domain + " " + std::to_string(error->code);
        return error->developerDescription.empty() ? known : known + ", " + error->developerDescription;
    }
};

/// The random boundary of a form by a short name.
std::string withKnownBoundary(std::string text) {
    static const std::regex boundary("Boundary-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}");
    return std::regex_replace(text, boundary, "B");
}

/// The longest answer that the operation at `target` takes, in bytes.
std::size_t longestAnswer(const std::string& target) {
    const std::string path = target.substr(0, target.find('?'));
    if (path == "/search-flights") return 160UL << 20U;
    for (const char* lookup : {"/search-airports", "/countries", "/availability", "/verify-flights"})
        if (path == lookup) return 2UL << 20U;
    return 256UL << 10U;
}

TEST_F(ClientCallTest, SendsOneExactRequestAndReadsItsAnswer) {
    for (const ClientCall& call : clientCalls()) {
        SCOPED_TRACE(call.name);
        Outcome outcome;
        call.start(outcome);
        ASSERT_EQ(world.network->outstanding(), 1U);
        const HttpRequest& request = world.network->waiting();
        EXPECT_EQ(request.method, call.method);
        EXPECT_EQ(request.url, "https://test.example/api/b2b/v2" + call.target);
        const bool isForm = call.name == "documents";
        Headers headers{{"Content-Type", isForm ? "multipart/form-data; boundary=B" : "application/json"}};
        if (call.name != "token") headers.emplace_back("Authorization", "Bearer T0KEN");
        Headers sent = request.headers;
        for (auto& [name, value] : sent)
            value = withKnownBoundary(value);
        EXPECT_EQ(sent, headers);
        EXPECT_EQ(request.timeoutInterval.count(), 60);
        EXPECT_EQ(request.answerBytes, longestAnswer(call.target));
        EXPECT_EQ(request.body.has_value(), call.body.has_value());
        EXPECT_EQ(withKnownBoundary(request.body.value_or("")), call.body.value_or(""));

        EXPECT_EQ(outcome.completions, 0);
        world.answer(captured(call.answer).dump(2));
        EXPECT_EQ(outcome.completions, 1);
        EXPECT_FALSE(outcome.error) << outcome.error->developerDescription;
        EXPECT_EQ(takeFailedCalls(), std::vector<std::string>());
        EXPECT_EQ(outcome.result, call.result);
    }
}

TEST_F(ClientCallTest, TellsEachFailureOnceWithAnEmptyResultAndOneDiagnosticLine) {
    const Error reset{"Transport", 54, "The connection was lost."};
    const std::string notUnderstood = "The service's answer could not be understood.";
    const struct {
        HttpAnswer answer;
        std::optional<Error> error; ///< its developer description is not compared
    } rows[] = {
        {{std::nullopt, reset}, reset},
        {{"{\"success\":true}", reset}, reset},
        {{std::nullopt, std::nullopt}, std::nullopt},
        {{R"({"success":false,"data":{"error":"x"}})", std::nullopt}, Error{"Ombrivane", 0, "x"}},
        {{R"({"success":false,"data":{"error":""},"message":"y"})", std::nullopt}, Error{"Ombrivane", 0, ""}},
        {{"", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{"<html>", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{"[]", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{"{}", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":1,"data":{}})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":"true","data":{}})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":true})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":true,"data":null})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":true,"data":{}})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":true,"data":[[]]})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":true,"hasRestrictions":true})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":false})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":false,"data":[]})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
        {{R"({"success":false,"data":{"error":7}})", std::nullopt}, Error{"Decoding", 0, notUnderstood}},
    };
    for (const ClientCall& call : clientCalls()) {
        for (const auto& row : rows) {
            SCOPED_TRACE(call.name + " " + row.answer.data.value_or("no data"));
            Outcome outcome;
            call.start(outcome);
            world.network->complete(row.answer);
            EXPECT_EQ(outcome.completions, 1);
            EXPECT_EQ(outcome.result, call.empty);
            auto expected = row.error;
            if (expected && expected->domain == "Ombrivane" && call.name == "token") {
                expected->domain = "Ombrivane.Authentication";
            }
            EXPECT_EQ(takeFailedCalls(), std::vector{lineOf(call, outcome.error)});
            if (outcome.error) outcome.error->developerDescription.clear();
            EXPECT_EQ(outcome.error, expected);
        }
    }
}

TEST_F(ClientCallTest, SendsNothingWhenOfflineOrWithoutAnAddress) {
    ServiceHosts::use({"https://production.example", "https://test example"});
    for (const bool online : {false, true}) {
        world.reachability->word = online ? reachableFlag : 0;
        for (const ClientCall& call : clientCalls()) {
            Outcome outcome;
            call.start(outcome);
            EXPECT_EQ(outcome.completions, 1) << call.name;
            EXPECT_EQ(outcome.result, call.empty) << call.name;
            ASSERT_TRUE(outcome.error) << call.name;
            EXPECT_EQ(takeFailedCalls(), std::vector{lineOf(call, outcome.error)});
            EXPECT_EQ(outcome.error->localizedDescription,
                      online ? "The provided url is not valid." : "You are not connected to internet.");
        }
    }
    EXPECT_TRUE(world.network->sent().empty());
}

/// A text that is no UTF-8 cannot be written: most requests then go out without a body, and those whose
/// itinerary would be lost do not go out at all.
TEST_F(ClientCallTest, WithoutAWritableBody) {
    const auto calls = clientCalls();
    AppState::shared().userType = "\xff";
    for (const ClientCall& call : calls) {
        if (call.method == "GET" || call.name == "token" || call.name == "documents") continue;
        if (call.name == "restrictions_special") continue; // has no user type
        SCOPED_TRACE(call.name);
        Outcome outcome;
        call.start(outcome);
        const bool carriesItinerary = call.target == "/availability" || call.target == "/verify-flights";
        ASSERT_EQ(world.network->outstanding(), carriesItinerary ? 0U : 1U);
        EXPECT_EQ(outcome.completions, carriesItinerary ? 1 : 0);
        if (carriesItinerary) {
            EXPECT_TRUE(outcome.error);
            EXPECT_EQ(takeFailedCalls(),
                      std::vector{call.target + " failed: Encoding 0, a text is no UTF-8"});
            continue;
        }
        EXPECT_FALSE(world.network->waiting().body);
        world.answer(captured(call.answer).dump());
        EXPECT_EQ(outcome.completions, 1);
    }
}

TEST_F(ClientCallTest, AsksForTheUserTypeOfTheHostWithTheToken) {
    AuthenticationProvider().authenticate("a", "b", "agent", [](const auto&, const auto&) {});
    EXPECT_EQ(world.network->waiting().body, R"({"user_type":"agent","username":"a","password":"b"})");
}

} // namespace
} // namespace ombrivane
