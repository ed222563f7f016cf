#include "Wallet.h"
#include "base/ErrorDomains.h"
#include "events/HostEvents.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace ombrivane {
namespace {

/// What a host that listens is told, "closed error credentialsRefused" for instance, without times.
class EventsTest : public testing::Test {
protected:
    static std::string wordsOf(const Event& event) {
        Json object = event.json();
        std::string words = object["event"];
        for (const char* key : {"screen", "offers", "formerFare", "fare", "closedBy", "error"}) {
            if (!object.contains(key)) continue;
            words += " " + (object[key].is_string() ? object[key].get<std::string>() : object[key].dump());
        }
        return words;
    }
    /// The events since the last call, of one opening.
    std::vector<std::string> told() {
        std::vector<std::string> words;
        for (const Event& event : std::exchange(events_, {})) {
            if (event.kind != EventKind::screenShown) words.push_back(wordsOf(event));
        }
        return words;
    }
    void expectOneOpening() const {
        for (const Event& event : events_)
            EXPECT_EQ(event.opening, events_.front().opening);
        EXPECT_NE(events_.front().opening, "");
    }

    fakes::World world;
    Wallet wallet{world, oneWayTrip, true};
    std::vector<Event> events_;
    std::vector<Json> calls_;
    HostEvents::Listening listening_ =
        HostEvents::shared().listen([this](const Event& event) { events_.push_back(event); },
                                    [this](const EndedCall& call) { calls_.push_back(call.json()); });
};

using Told = std::vector<std::string>;

TEST_F(EventsTest, ABookingTellsItsStationsInTheirOrder) {
    wallet.wholeRoad();
    expectOneOpening();
    Told screens;
    for (const Event& event : events_) {
        if (event.kind == EventKind::screenShown) screens.push_back(event.screen);
    }
    EXPECT_EQ(screens.front(), "OmbrivaneView") << "the placeholder";
    EXPECT_EQ(screens.at(1), "MainView");
    EXPECT_EQ(std::count(screens.begin(), screens.end(), "OWBookingDetailsView"), 3)
        << "come to, and come back to from two forms";
    EXPECT_EQ(events_.back().kind, EventKind::closed) << "nothing is shown after it";
    EXPECT_EQ(told(),
              (Told{"opened",
                    "searchSent",
                    "searchAnswered 1",
                    "bookingOpened",
                    "fareMoved 1000 115889",
                    "reservationSent",
                    "reservationAnswered",
                    "uploadSent",
                    "uploadAnswered",
                    "closed reservation"}));
    Told endpoints;
    for (const Json& call : calls_) {
        endpoints.push_back(call["endpoint"]);
        EXPECT_GT(call["bytes"].get<std::size_t>(), 0U);
        EXPECT_FALSE(call.contains("error"));
    }
    EXPECT_EQ(endpoints.front(), "/get-token");
    EXPECT_EQ(endpoints.back(), "/documents");
}

TEST_F(EventsTest, AReservationWhoseAnswerSaysNothingIsUnknown) {
    const struct {
        std::function<void()> answer;
        const char* told;
    } rows[] = {
        {[&] { wallet.answer(Json::parse(R"({"success":false,"data":{"error":"No seats left."}})")); },
         "reservationAnswered refused"},
        {[&] { wallet.fail(); }, "reservationUnknown timedOut"},
        {[&] { wallet.answer(Json("half an answer")); }, "reservationUnknown answerNotUnderstood"},
    };
    wallet.toReady();
    told();
    for (const auto& row : rows) {
        wallet.tap("continue");
        row.answer();
        EXPECT_EQ(told(), (Told{"reservationSent", row.told}));
    }
    EXPECT_EQ(calls_.back()["error"], "answerNotUnderstood");
}

TEST_F(EventsTest, TheEndSaysWhoseDoingItWas) {
    wallet.show();
    wallet.fail();
    EXPECT_EQ(told(), (Told{"opened", "closed error timedOut"}));
    const std::string first = HostEvents::shared().opening();

    wallet.show();
    EXPECT_NE(HostEvents::shared().opening(), first);
    wallet.answer();
    wallet.tap("back");
    EXPECT_EQ(told(), (Told{"opened", "closed customer"}));

    wallet.show();
    wallet.drop();
    EXPECT_EQ(told(), (Told{"opened", "closed host"})) << "once";
    wallet.settle();
    EXPECT_EQ(told(), Told{});
}

TEST_F(EventsTest, WhatIsReservedAfterTheViewHasGoneBelongsToItsOpening) {
    wallet.toReady();
    wallet.tap("continue");
    const std::string opening = HostEvents::shared().opening();
    wallet.drop();
    HostEvents::shared().beginOpening();
    events_.clear();
    wallet.settle();
    ASSERT_FALSE(events_.empty());
    for (const Event& event : events_)
        EXPECT_EQ(event.opening, opening) << nameOf(event.kind);
    EXPECT_EQ(told(), (Told{"reservationAnswered", "uploadSent", "uploadAnswered"}));
}

/// The search of the second opening takes the process's flags, and with them the first one's list.
TEST_F(EventsTest, AScreenBelongsToTheOpeningOfItsView) {
    wallet.toGate();
    const std::string first = HostEvents::shared().opening();
    Wallet another(world);
    another.show();
    events_.clear();
    another.answer(world.network->outstanding() - 1);
    std::map<std::string, std::string> shown;
    for (const Event& event : events_)
        if (event.kind == EventKind::screenShown) shown[event.opening] = event.screen;
    EXPECT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[first], "MainView");
    EXPECT_EQ(shown[HostEvents::shared().opening()], "MainView");
}

TEST_F(EventsTest, TheExpiryIsToldOnce) {
    wallet.toSession();
    told();
    world.pass(std::chrono::seconds(700));
    EXPECT_EQ(told(), Told{"expired"});
}

TEST_F(EventsTest, AHostMayLetGoOfTheViewAtTheExpiry) {
    const auto dropping = HostEvents::shared().listen([this](const Event& event) {
        if (event.kind == EventKind::expired) wallet.drop();
    });
    wallet.toSession();
    told();
    world.pass(std::chrono::seconds(700));
    EXPECT_EQ(told(), (Told{"expired", "closed host"}));
}

TEST_F(EventsTest, AListenerThatThrowsOrHasGoneDisturbsNobody) {
    int heard = 0;
    auto gone = HostEvents::shared().listen([&](const Event&) { ++heard; });
    const auto throwing =
        HostEvents::shared().listen([](const Event&) { throw std::runtime_error("mine"); },
                                    [](const EndedCall&) { throw std::runtime_error("mine"); });
    const auto empty = HostEvents::shared().listen(nullptr);
    wallet.show();
    EXPECT_EQ(heard, 2);
    gone.reset();
    wallet.wholeRoad();
    EXPECT_EQ(heard, 2);
    EXPECT_EQ(wallet.handedOver.size(), 1U);
}

} // namespace
} // namespace ombrivane
