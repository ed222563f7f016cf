#include "base/SharedInstance.h"
#include "services/AirportSearchProvider.h"
#include "services/CountryProvider.h"
#include "services/CustomError.h"
#include "services/Endpoints.h"
#include "services/Outcome.h"
#include "services/Reachability.h"
#include "services/ServiceFixture.h"

namespace ombrivane {
namespace {

class FrameTest : public ServiceFixture {};

TEST_F(FrameTest, NothingButTestSelectsTheTestHost) {
    for (const std::string environment : {"test", "Test", " test", "test ", "", "production"}) {
        dropSharedInstances();
        AppState::shared().environment = environment;
        EXPECT_EQ(Endpoints::shared().address(endpoint::token),
                  environment == "test" ? "https://test.example/api/b2b/v2/get-token"
                                        : "https://production.example/api/b2b/v2/get-token");
    }
}

TEST_F(FrameTest, ASlashBehindAHostIsNotSentTwice) {
    ServiceHosts::use({"https://production.example/", "https://test.example//"});
    EXPECT_EQ(Endpoints::shared().address(endpoint::token), "https://test.example/api/b2b/v2/get-token");
}

TEST_F(FrameTest, TheFirstUseFixesTheAddresses) {
    const std::string first = Endpoints::shared().baseURL;
    AppState::shared().environment = "production";
    ServiceHosts::use({"https://other.example", "https://other.example"});
    EXPECT_EQ(Endpoints::shared().baseURL, first);
}

TEST_F(FrameTest, OnlyTwoBitsOfTheRouteCount) {
    const std::pair<std::optional<std::uint32_t>, bool> rows[] = {
        {std::nullopt, false},
        {0, false},
        {2, true},
        {4, false},
        {6, false},
        {2 | 1 << 18, true},
        {~4U, true},
    };
    for (const auto& [flags, connected] : rows) {
        world.reachability->word = flags;
        EXPECT_EQ(Reachability::isConnectedToNetwork(), connected) << flags.value_or(0);
    }
}

/// Keeps what it is asked to translate.
class Translator final : public Localization {
public:
    std::string localized(const std::string& key, const std::string& comment) override {
        return key + " (" + comment + ")";
    }
    std::string locale() override { return "en_US"; }
    std::string timeZone() override { return "UTC"; }
};

TEST_F(FrameTest, EachFailureOfItsOwnHasAText) {
    Platform ports = platform();
    ports.localization = std::make_shared<Translator>();
    Platform::install(ports);
    const std::pair<CustomError, const char*> rows[] = {
        {CustomError::invalidUrl, "The provided url is not valid. (Invalid URL)"},
        {CustomError::noInternetConnection, "You are not connected to internet. (No Internet Connection)"},
        {CustomError::requiredIOSVersion, "Please update yor phone to ios 14. (Invalid URL)"},
        {CustomError::sourceDestinationSame,
         "The source and destination can't be same (Invalid Destination)"},
    };
    for (const auto& [error, text] : rows)
        EXPECT_EQ(errorDescription(error), text);
}

TEST_F(FrameTest, ARequestAfterTheHostHasEndedItsNetworkIsAnError) {
    Platform::endNetwork();
    Outcome outcome;
    AirportSearchProvider().searchAirports("KTM", into<std::vector<Airport>>(outcome));
    EXPECT_EQ(outcome.completions, 1);
    EXPECT_TRUE(is(outcome.error, CustomError::noInternetConnection));
}

TEST_F(FrameTest, TheAirportQueryGoesIntoTheAddressAsItStands) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "?q=&user_type=customer"},
        {"new%20delhi", "?q=new%20delhi&user_type=customer"},
        {"a&b=c", "?q=a&b=c&user_type=customer"},
        {"new delhi", nullptr},
        {"Zürich", nullptr},
        {"a\"b", nullptr},
        {"50%", nullptr},
        {"a\nb", nullptr},
    };
    for (const auto& [query, sent] : rows) {
        SCOPED_TRACE(query);
        Outcome outcome;
        const auto before = world.network->sent().size();
        AirportSearchProvider().searchAirports(query, into<std::vector<Airport>>(outcome));
        if (sent != nullptr) {
            EXPECT_EQ(world.network->last().url,
                      std::string("https://test.example/api/b2b/v2/search-airports") + sent);
            continue;
        }
        EXPECT_EQ(world.network->sent().size(), before);
        EXPECT_TRUE(is(outcome.error, CustomError::invalidUrl));
    }
    while (world.network->outstanding() > 0)
        world.network->answer("{}");
}

TEST_F(FrameTest, CountriesInTheOrderOfPriority) {
    const std::pair<std::vector<const char*>, std::vector<const char*>> rows[] = {
        {{}, {}},
        {{"AL", "CN", "IN", "NP", "ZM"}, {"NP", "IN", "CN", "AL", "ZM"}},
        {{"NP", "CN", "IN"}, {"IN", "CN", "NP"}}, // each match goes in front of those before it
        {{"AL", "np", "NP", "ZM"}, {"NP", "np", "AL", "ZM"}},
        {{"AL", "ZM", "AL", "al"}, {"AL", "ZM", "al"}},
        {{"CN", "CN"}, {"CN"}},
    };
    for (const auto& [served, expected] : rows) {
        Json countries = Json::array();
        for (std::size_t i = 0; i < served.size(); ++i) {
            countries.push_back({{"id", i},
                                 {"name", ""},
                                 {"nationality", ""},
                                 {"short_name", served[i]},
                                 {"country_code", ""}});
        }
        Outcome outcome;
        CountryProvider().fetchCountries(into<std::vector<Country>>(outcome));
        world.answer(Json{{"success", true}, {"data", {{"countries", countries}}}}.dump());
        ASSERT_FALSE(outcome.error);
        std::vector<std::string> order;
        for (const Json& country : outcome.result)
            order.push_back(country.at("short_name"));
        EXPECT_EQ(order, std::vector<std::string>(expected.begin(), expected.end()));
    }
}

} // namespace
} // namespace ombrivane
