#include "Wallet.h"
#include "events/HostEvents.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ombrivane {
namespace {

/// Plays a booking in which everything personal is a word of its own, through every failure that has words.
class CanaryTest : public testing::TestWithParam<std::tuple<Trip, bool>> {
protected:
    /// The texts that the component shows or says when something failed, and what a host may log.
    std::vector<std::string> play() {
        std::vector<std::string> texts;
        const auto listening = HostEvents::shared().listen(
            [&texts](const Event& event) { texts.push_back(event.json().dump()); },
            [&texts](const EndedCall& call) { texts.push_back(call.json().dump()); });
        Wallet wallet(world, std::get<Trip>(GetParam()), std::get<bool>(GetParam()));
        wallet.toReady();
        const auto failWith = [&](const Json& body) {
            wallet.tap("continue");
            wallet.answer(body);
            texts.push_back(wallet.get("errorMessage").get<std::string>());
        };
        wallet.tap("continue");
        wallet.fail();
        // Answers that carry what the customer wrote and that cannot be understood.
        Json booking = fakes::captured("reservation");
        Json& summary = booking["data"]["bookingSummary"];
        summary["passengers"][0]["passenger_name"] = "Asha Lama PA1234567";
        summary["passengers"][0]["passenger_id"] = Json{{"PA1234567", "9800000000"}};
        failWith(booking);
        failWith(booking.dump().substr(0, booking.dump().size() / 2));
        failWith("asha@example.com PA1234567");
        texts.push_back(wallet.get("phase").get<std::string>());
        texts.push_back(wallet.recording());
        wallet.tap("continue");
        wallet.settle();
        for (const auto& word : wallet.heard)
            texts.push_back(word);
        for (const auto& fault : world.takeFaults())
            texts.push_back(fault);
        EXPECT_EQ(wallet.handedOver.size(), 1U);
        EXPECT_GE(texts.size(), 30U) << "each screen, each request and each answer has its line";
        return texts;
    }

    fakes::World world;
};

INSTANTIATE_TEST_SUITE_P(Trips, CanaryTest, everyTrip, tripName);

TEST_P(CanaryTest, NothingPersonalReachesALogAnErrorOrTheOutput) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    auto texts = play();
    texts.push_back(testing::internal::GetCapturedStdout());
    texts.push_back(testing::internal::GetCapturedStderr());
    for (const auto& line : world.diagnostics->lines)
        texts.push_back(line);
    const auto& failed = world.diagnostics->failedCalls;
    EXPECT_GE(failed.size(), 4U) << "each failure has its line";
    texts.insert(texts.end(), failed.begin(), failed.end());
    const std::string token = fakes::captured("token")["data"]["accessToken"];
    for (const std::string& secret : {std::string("Asha"),
                                      std::string("Lama"),
                                      std::string("asha@example.com"),
                                      std::string("9800000000"),
                                      std::string("9801234567"),
                                      std::string("PA1234567"),
                                      std::string("2026-01-05"),
                                      std::string("wallet-secret"),
                                      token}) {
        for (const auto& text : texts)
            EXPECT_EQ(text.find(secret), std::string::npos) << secret << " in " << text;
    }
    // What must not be found was on its way.
    const auto& sent = world.network->sent();
    EXPECT_TRUE(std::any_of(sent.begin(), sent.end(), [](const HttpRequest& request) {
        return request.body.value_or("").find("asha@example.com") != std::string::npos;
    }));
}

} // namespace
} // namespace ombrivane
