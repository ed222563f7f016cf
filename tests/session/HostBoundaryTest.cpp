#include "session/HostBoundary.h"
#include "session/Reservations.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace ombrivane {
namespace {

/// What the host hears and when its view is closed, as one list.
class HostBoundaryTest : public testing::Test {
protected:
    using Log = std::vector<std::string>;

    CompletionCallback hearing() {
        return [this](const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
            heard.push_back(dictionary ? dictionary->dump() : "nil");
            if (error) heard.back() += " " + error->localizedDescription;
            if (whenCalled) whenCalled();
        };
    }
    void send(const char* dictionary, std::optional<Error> error = std::nullopt) {
        const auto passed =
            dictionary != nullptr ? std::optional(Dictionary::parse(dictionary)) : std::nullopt;
        guarded([&] { boundary->internalCallback()(passed, std::move(error)); });
        EXPECT_TRUE(heard.empty() || heard.back() != "close") << "closing is a step of its own";
        world.queue->drain();
    }
    Log taken() { return std::exchange(heard, {}); }

    fakes::World world;
    Log heard;
    std::function<void()> whenCalled;
    std::shared_ptr<HostBoundary> boundary =
        std::make_shared<HostBoundary>(hearing(), [this] { heard.emplace_back("close"); });
};

const Error refused{"Ombrivane", 0, "refused"};
constexpr const char* finished = R"({"exit":true,"totalCost":7,"flightSummary":{"z":1,"a":[2]}})";
constexpr const char* progress = R"({"exit":false,"bookingSummary":null})";

TEST_F(HostBoundaryTest, TellsTheHostAndClosesByWhatAScreenPasses) {
    struct Case {
        const char* dictionary;
        std::optional<Error> error;
        Log heard;
        bool staysOpen;
    };
    const Case cases[] = {
        {nullptr, refused, {"nil refused", "close"}, false},
        {finished, refused, {"nil refused", "close"}, false},
        {nullptr, std::nullopt, {"close"}, false},
        {finished, std::nullopt, {finished, "close"}, false},
        {progress, std::nullopt, {progress}, true},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::PrintToString(row.heard));
        boundary = std::make_shared<HostBoundary>(hearing(), [this] { heard.emplace_back("close"); });
        send(row.dictionary, row.error);
        EXPECT_EQ(taken(), row.heard);
        send(progress);
        EXPECT_EQ(taken(), row.staysOpen ? Log{progress} : Log{});
    }
}

TEST_F(HostBoundaryTest, WhatTheHostThrowsEndsInItsCallbackAndTheComponentCloses) {
    for (const char* dictionary : {static_cast<const char*>(nullptr), finished}) {
        boundary = std::make_shared<HostBoundary>(hearing(), [this] { heard.emplace_back("close"); });
        whenCalled = [] { throw std::runtime_error("9800000000 is not a customer"); };
        send(dictionary, dictionary == nullptr ? std::optional(refused) : std::nullopt);
        EXPECT_EQ(taken().back(), "close");
        EXPECT_EQ(Reservations::shared().pending(), dictionary == nullptr ? 0U : 1U);
        EXPECT_EQ(std::exchange(world.diagnostics->lines, {}),
                  std::vector<std::string>{"callback: the host's callback has thrown an exception"});
    }
}

TEST_F(HostBoundaryTest, OnceClosedOrDroppedOnlyAReservationStillReachesTheHost) {
    for (const bool dropped : {false, true}) {
        SCOPED_TRACE(dropped);
        boundary = std::make_shared<HostBoundary>(hearing(), [this] { heard.emplace_back("close"); });
        if (dropped) {
            boundary->drop();
        } else {
            send(nullptr);
            taken();
        }
        send(nullptr, refused);
        send(nullptr);
        send(progress);
        EXPECT_TRUE(taken().empty());
        send(finished);
        EXPECT_EQ(taken(), (Log{finished})) << "handed over, and nothing is closed a second time";
    }
}

TEST_F(HostBoundaryTest, ADictionaryWithoutABooleanExitIsAFault) {
    for (const char* dictionary : {"{}", R"({"exit":1})", R"({"exit":"true"})", "[]", "null"}) {
        send(dictionary);
        EXPECT_TRUE(taken().empty()) << dictionary;
        EXPECT_EQ(world.takeFaults().size(), 1U) << dictionary;
    }
    send(finished);
    EXPECT_EQ(taken(), (Log{finished, "close"})) << "the reservation that follows is not lost";
}

TEST_F(HostBoundaryTest, AHostThatDropsItsViewWhenCalledIsNotAskedToCloseIt) {
    whenCalled = [this] { boundary->drop(); };
    send(nullptr, refused);
    EXPECT_EQ(taken(), (Log{"nil refused"}));
}

TEST_F(HostBoundaryTest, IsKeptByTheScreensThatMayStillCallIt) {
    const auto callback = boundary->internalCallback();
    boundary.reset();
    callback(Dictionary::parse(finished), std::nullopt);
    world.queue->drain();
    EXPECT_EQ(taken(), (Log{finished, "close"}));
}

} // namespace
} // namespace ombrivane
