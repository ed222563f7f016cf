#include "services/AuthenticationProvider.h"

#include "base/SharedInstance.h"
#include "fakes/World.h"
#include "services/ServiceHosts.h"
#include "state/AppState.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

constexpr const char* secret = "wallet-secret";
constexpr const char* notUnderstoodText = "The service's answer could not be understood.";

/// The request frame, looked at through the simplest of the clients.
class TokenRequestTest : public testing::Test {
protected:
    void authenticate() {
        AuthenticationProvider().authenticate(
            "wallet",
            secret,
            std::nullopt,
            [this](std::optional<Authentication> result, std::optional<Error> e) {
                ++calls;
                authentication = std::move(result);
                error = std::move(e);
            });
    }
    void answered(const std::string& answer) {
        calls = 0;
        authenticate();
        EXPECT_EQ(calls, 0);
        world.network->answer(answer);
        EXPECT_EQ(calls, 1);
    }

    fakes::World world;
    int calls = 0;
    std::optional<Authentication> authentication;
    std::optional<Error> error;
};

TEST_F(TokenRequestTest, WithoutAConnectionNothingIsBuiltOrSent) {
    world.reachability->word = std::nullopt;
    const ServiceHosts before = ServiceHosts::current();
    ServiceHosts::use({"no host", "no host"}); // would be another error, were the address looked at
    authenticate();
    ServiceHosts::use(before);
    EXPECT_EQ(calls, 1);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, "You are not connected to internet.");
    EXPECT_EQ(error->code, 1);
    EXPECT_TRUE(world.network->sent().empty());
}

TEST_F(TokenRequestTest, AnAddressThatIsNoneEndsTheCallBeforeAnythingIsSent) {
    const ServiceHosts before = ServiceHosts::current();
    for (const std::string host : {"https://a b", "http://a.example", "a.example"}) {
        dropSharedInstances(); // the first address stays for the life of the process
        calls = 0;
        ServiceHosts::use({host, host});
        authenticate();
        EXPECT_EQ(calls, 1) << host;
        ASSERT_TRUE(error);
        EXPECT_EQ(error->localizedDescription, "The provided url is not valid.");
        EXPECT_EQ(error->code, 0);
        EXPECT_TRUE(world.network->sent().empty()) << host;
    }
    ServiceHosts::use(before);
}

TEST_F(TokenRequestTest, ATransportErrorComesAsItIsAndWinsOverWhatElseArrived) {
    const Error lost{"Transport", -1005, "The connection was lost.", "socket 7"};
    for (const auto& data :
         {std::optional<std::string>(),
          std::optional<std::string>(R"({"success":true,"data":{"tokenType":"b","accessToken":"T"}})")}) {
        calls = 0;
        authenticate();
        world.network->complete({data, lost});
        EXPECT_EQ(calls, 1);
        EXPECT_EQ(error, lost);
        EXPECT_FALSE(authentication);
    }
}

TEST_F(TokenRequestTest, NeitherDataNorAnErrorIsAnEmptyResultWithoutAnError) {
    authenticate();
    world.network->complete({});
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(authentication);
    EXPECT_FALSE(error);
}

TEST_F(TokenRequestTest, ARefusalCarriesTheServicesOwnWordsInADomainOfItsOwn) {
    answered(R"({"data":{"error":"कृपया फेरि \"login\" <b>","code":7},"success":false,"more":[]})");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, "कृपया फेरि \"login\" <b>");
    EXPECT_EQ(error->code, 0);
    EXPECT_NE(error->domain, "Ombrivane");
    EXPECT_FALSE(authentication);
}

TEST_F(TokenRequestTest, ASuccessYieldsTheTokenWhateverStandsBeside) {
    answered(R"( {"status":500,"data":{"expires":1,"accessToken":"T","tokenType":"b"},"success":true})");
    EXPECT_EQ(authentication, (Authentication{"b", "T"}));
    EXPECT_FALSE(error);
}

TEST_F(TokenRequestTest, ABrokenAnswerIsAnErrorThatNamesItsKeyToTheDeveloperAlone) {
    struct Case {
        const char* answer;
        const char* developer; ///< nullptr: a parser's own words
    };
    const Case cases[] = {
        {"", nullptr},
        {"wallet-secret", nullptr},
        {"<html>wallet-secret</html>", nullptr},
        {R"({"success":true,"data":{"tokenType":"b","accessToken":"wallet-secret")", nullptr},
        {"{\"success\":false,\"data\":{\"error\":\"\xFF\"}}", nullptr},
        {"[]", nullptr},
        {"null", nullptr},
        {R"("wallet-secret")", nullptr},
        {"{}", "success: is missing"},
        {R"({"Success":true})", "success: is missing"},
        {R"({"success":null})", "success: wants true or false"},
        {R"({"success":1})", "success: wants true or false"},
        {R"({"success":"wallet-secret"})", "success: wants true or false"},
        {R"({"success":true})", "data: is missing"},
        {R"({"success":true,"data":null})", "data: wants an object"},
        {R"({"success":true,"data":["wallet-secret"]})", "data: wants an object"},
        {R"({"success":true,"data":{}})", "data.tokenType: is missing"},
        {R"({"success":true,"data":{"tokenType":"b"}})", "data.accessToken: is missing"},
        {R"({"success":true,"data":{"tokenType":"b","accessToken":null}})", "data.accessToken: wants a text"},
        {R"({"success":true,"data":{"tokenType":"b","accessToken":{"wallet-secret":1}}})",
         "data.accessToken: wants a text"},
        {R"({"success":false})", "data: is missing"},
        {R"({"success":false,"data":"wallet-secret"})", "data: wants an object"},
        {R"({"success":false,"data":{"message":"wallet-secret"}})", "data.error: is missing"},
        {R"({"success":false,"data":{"error":["wallet-secret"]}})", "data.error: wants a text"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.answer);
        answered(row.answer);
        EXPECT_FALSE(authentication);
        if (!error) {
            ADD_FAILURE() << "no error";
            continue;
        }
        EXPECT_EQ(error->localizedDescription, notUnderstoodText);
        EXPECT_EQ(error->developerDescription.find(secret), std::string::npos);
        if (row.developer != nullptr) {
            EXPECT_EQ(error->developerDescription, row.developer);
        } else {
            EXPECT_FALSE(error->developerDescription.empty());
        }
    }
}

TEST_F(TokenRequestTest, ABodyThatCannotBeWrittenDoesNotStopTheRequest) {
    AuthenticationProvider().authenticate("wallet", "\xFF", "agent", [](const auto&, const auto&) {});
    ASSERT_EQ(world.network->outstanding(), 1U);
    EXPECT_EQ(world.network->waiting().body, std::nullopt);
    EXPECT_EQ(world.network->waiting().method, "POST");
}

TEST_F(TokenRequestTest, EveryRequestAsksAnewWhetherThereIsAConnection) {
    authenticate();
    world.reachability->word = reachableFlag | connectionRequiredFlag;
    authenticate();
    EXPECT_EQ(calls, 1) << "the second ended at once";
    world.network->answer(R"({"success":true,"data":{"tokenType":"b","accessToken":"T"}})");
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(authentication);
}

} // namespace
} // namespace ombrivane
