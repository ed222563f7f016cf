#include "AlteringNetwork.h"
#include "Wallet.h"
#include "services/JsonSpans.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <utility>

namespace ombrivane {
namespace {

/// Books as far as the screens let it, every member of every screen observed. Whatever an answer says: no
/// fault, one hand-over at most, and nothing is heard of a view that is gone.
void book(const Trip& trip, const AlteringNetwork::Alter& damage) {
    fakes::World world;
    Platform ports = platform();
    ports.network = std::make_shared<AlteringNetwork>(world.network, damage);
    Platform::install(ports);
    Wallet wallet(world, trip, true);
    insist(wallet);
    wallet.settle();
    EXPECT_EQ(world.takeFaults(), std::vector<std::string>());
    EXPECT_LE(wallet.handedOver.size(), 1U);
    for (const auto& word : wallet.heard)
        EXPECT_FALSE(word.starts_with("late ")) << word;
}

class DamagedAnswersTest : public testing::TestWithParam<Trip> {};

INSTANTIATE_TEST_SUITE_P(Trips, DamagedAnswersTest, testing::Values(oneWayTrip, specialTrip),
                         [](const auto& row) { return row.param.tab; });

TEST_P(DamagedAnswersTest, AValueThatNoHonestServiceSendsIsShownOrRefused) {
    const std::string values[] = {"null",
                                  "true",
                                  "0",
                                  "-1",
                                  "1e300",
                                  "9223372036854775807",
                                  "1e400",
                                  "\"\"",
                                  "\" \"",
                                  "\"0\"",
                                  "\"2027-02-30\"",
                                  "\"<b>&nbsp;</b>\\u202e\\u0301\\ud83d\\ude00\\u0000\"",
                                  "\"" + std::string(5000, 'x') + "\"",
                                  "{}",
                                  "[]",
                                  "[null,{}]"};
    std::map<std::string, std::string> honest;
    book(GetParam(), [&honest](const std::string& operation, const std::string& text) {
        return honest[operation] = text;
    });
    ASSERT_EQ(honest.size(), 6U) << "token, offers, rules, availability, reservation, documents";
    std::size_t turn = 0;
    for (const auto& [damaged, answer] : honest) {
        const auto spans = JsonSpans(answer).all();
        for (std::size_t i = 0; i < spans.size(); ++i) {
            const auto& value = values[turn++ % std::size(values)];
            SCOPED_TRACE(damaged + ": " + value.substr(0, 40) + " for " +
                         answer.substr(spans[i].keyBegin,
                                       std::min<std::size_t>(60, spans[i].end - spans[i].keyBegin)));
            const std::string instead =
                answer.substr(0, spans[i].begin) + value + answer.substr(spans[i].end);
            book(GetParam(), [&](const std::string& operation, const std::string& text) {
                return operation == damaged ? instead : text;
            });
        }
    }
}

} // namespace
} // namespace ombrivane
