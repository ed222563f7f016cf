#include "base/ErrorKind.h"
#include "fakes/World.h"
#include "network/Line.h"
#include "network/TlsServer.h"
#include "sandbox/wire/Gzip.h"
#include "services/AuthenticationProvider.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/ServiceHosts.h"
#include "words/LanguageChoice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <future>

namespace ombrivane::network {
namespace {

constexpr const char* secret = "secret-of-the-wallet";

struct Outcome {
    std::optional<Authentication> result;
    std::optional<Error> error;
};

/// The token request of the component over the real network.
class FrameOnTheLineTest : public testing::TestWithParam<std::pair<const char*, const char*>> {
protected:
    FrameOnTheLineTest() : server_(withOneClient()) {
        server_.start();
        ServiceHosts::use({server_.address(), server_.address()});
        Platform ports = platform();
        ports.network = std::make_shared<CurlNetwork>(CurlSettings{.caFile = server_.caFile()});
        Platform::install(std::move(ports));
    }

    /// Completing more than once is a fault that the world reports.
    static Outcome authenticate(const std::string& password = secret) {
        const auto promise = std::make_shared<std::promise<Outcome>>();
        auto outcome = promise->get_future();
        AuthenticationProvider().authenticate(
            "wallet", password, std::nullopt, [promise](auto result, auto error) {
                promise->set_value({std::move(result), std::move(error)});
            });
        if (outcome.wait_for(std::chrono::seconds(30)) != std::future_status::ready) return {{}, noAnswer};
        return outcome.get();
    }

    static void expectNothingGivenAway(const Error& error, const std::string& token) {
        for (const auto& text : {error.domain, error.localizedDescription, error.developerDescription}) {
            EXPECT_EQ(text.find(secret), std::string::npos) << text;
            EXPECT_EQ(text.find(token.substr(0, 12)), std::string::npos) << text;
        }
        EXPECT_FALSE(error.localizedDescription.empty());
    }

    sandbox::Sandbox& server() { return server_; }

private:
    static sandbox::Options withOneClient() {
        sandbox::Options options;
        options.clients = {{"wallet", secret}};
        return options;
    }

    fakes::World world_;
    sandbox::Sandbox server_;
};

TEST_P(FrameOnTheLineTest, ABrokenAnswerIsOneErrorThatTellsNoSecret) {
    const Outcome good = authenticate();
    ASSERT_TRUE(good.result) << good.error->localizedDescription;
    // From here on the server gives the same token again.
    server().reset();
    server().setFaults({std::string("/get-token ") + GetParam().first});

    LanguageChoice nepali;
    nepali.language = "ne";
    chooseLanguage(nepali);
    const Outcome outcome = authenticate();
    EXPECT_FALSE(outcome.result);
    ASSERT_TRUE(outcome.error);
    const std::string& text = outcome.error->localizedDescription;
    EXPECT_EQ(outcome.error->domain, GetParam().second) << text;
    const bool isForeign =
        std::any_of(text.begin(), text.end(), [](unsigned char byte) { return byte > 127; });
    EXPECT_EQ(isForeign, kindOf(*outcome.error) != ErrorKind::credentialsRefused) << text;
    expectNothingGivenAway(*outcome.error, good.result->accessToken);
    EXPECT_EQ(server().requests().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Faults, FrameOnTheLineTest,
    testing::Values(std::pair{"malformed", "Decoding"}, std::pair{"truncate=60", "Decoding"},
                    std::pair{"empty", "Decoding"}, std::pair{"scalar", "Decoding"},
                    std::pair{"nul", "Decoding"}, std::pair{"invalid-utf8", "Decoding"},
                    std::pair{"extra=1", "Decoding"}, std::pair{"extra=5000", "Decoding"},
                    std::pair{"deep=500", "Decoding"}, std::pair{"deep=100000", "Decoding"},
                    std::pair{"deep=2000000", "Network"}, std::pair{"huge=250000", "Decoding"},
                    std::pair{"huge=270000", "Network"}, std::pair{"wrong-type=data.accessToken", "Decoding"},
                    std::pair{"wrong-type=data.tokenType", "Decoding"},
                    std::pair{"wrong-type=data", "Decoding"}, std::pair{"wrong-type=success", "Decoding"},
                    std::pair{"missing-key=data.accessToken", "Decoding"},
                    std::pair{"missing-key=data", "Decoding"}, std::pair{"missing-key=success", "Decoding"},
                    std::pair{"redirect=/api/b2b/v2/get-token", "Decoding"}, std::pair{"short", "Network"},
                    std::pair{"drop", "Network"}, std::pair{"reset", "Network"},
                    std::pair{"half-status-line", "Network"}, std::pair{"endless", "Network"},
                    std::pair{"gzip-bomb=100000000", "Network"},
                    std::pair{"refuse=Not today.", "Ombrivane.Authentication"}));

TEST_F(FrameOnTheLineTest, TheStatusIsNotReadAndARefusalIsTheServicesOwn) {
    server().setFaults({"/get-token status=500 times=1"});
    EXPECT_TRUE(authenticate().result);
    const std::string wrong = std::string(secret) + "!";
    const Error error = authenticate(wrong).error.value_or(noAnswer);
    EXPECT_EQ(error, (Error{"Ombrivane.Authentication", 0, "Invalid credentials."}));
}

/// An answer that is short on the line and long when it is unpacked.
struct PackedCase {
    const char* name;
    std::string filler;
    std::size_t bytes; ///< unpacked
    const char* failure;

    friend std::ostream& operator<<(std::ostream& out, const PackedCase& row) { return out << row.name; }
};

class OffersOnTheLineTest : public testing::TestWithParam<PackedCase> {};

TEST_P(OffersOnTheLineTest, WhatALimitRefusesIsOneErrorAndOneDiagnosticLine) {
    const std::string body =
        sandbox::gzippedFiller(R"({"success":true,"data":[{})", GetParam().bytes, "]}", GetParam().filler);
    ASSERT_LT(body.size(), 400'000U);
    TlsServer service([&body](sandbox::TlsConnection& connection) {
        if (readRequest(connection))
            connection.write("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: " +
                             std::to_string(body.size()) + "\r\n\r\n" + body);
    });
    const fakes::World world;
    ServiceHosts::use({service.url(""), service.url("")});
    Platform ports = platform();
    ports.network = std::make_shared<CurlNetwork>(CurlSettings{.caFile = service.caFile()});
    Platform::install(std::move(ports));

    std::promise<std::pair<std::size_t, Error>> promise;
    FlightQuery query;
    query.adults = "1";
    query.children = query.infants = "0";
    FlightSearchOneWayProvider().searchFlights(query, [&promise](const auto& offers, const auto& error) {
        promise.set_value({offers.size(), error.value_or(noAnswer)});
    });
    const auto [offers, error] = promise.get_future().get();
    EXPECT_EQ(offers, 0U);
    std::string told = "/search-flights failed: ";
    told += GetParam().failure;
    if (error.domain == "Network") told += ", " + std::to_string(body.size()) + " announced";
    EXPECT_EQ(world.diagnostics->failedCalls, std::vector{told});
}

INSTANTIATE_TEST_SUITE_P(
    Packed, OffersOnTheLineTest,
    testing::Values(
        PackedCase{"TenMillionEmptyOffers", ",{}", 30'000'028, "Decoding 0, data: more than 10000 elements"},
        PackedCase{
            "SpaceWithoutEnd", " ", 170'000'000, "Network 63, the body has more than 167772160 bytes"}));

} // namespace
} // namespace ombrivane::network
