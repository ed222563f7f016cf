#include "session/Reservations.h"

#include "fakes/World.h"
#include "session/HostBoundary.h"

#include <gtest/gtest.h>

#include <thread>

namespace ombrivane {
namespace {

Dictionary reservation(int number) { return Dictionary{{"exit", true}, {"totalCost", number}}; }

class ReservationsTest : public testing::Test {
protected:
    /// A wallet's receipts: takes whatever waits.
    Subscription listening() {
        return reservations.observe([this] {
            while (const auto taken = reservations.take())
                receipts.push_back(taken->at("totalCost").get<int>());
        });
    }

    fakes::World world;
    Reservations& reservations = Reservations::shared();
    std::vector<int> receipts;
};

TEST_F(ReservationsTest, EveryReservationAndNothingElseArrivesOnceWhateverBecameOfTheView) {
    int calls = 0;
    const auto boundary = std::make_shared<HostBoundary>([&](const auto&, const auto&) { ++calls; }, nullptr);
    const auto receiver = listening();
    boundary->receive(Dictionary{{"exit", false}, {"totalCost", 1}}, std::nullopt);
    boundary->receive(reservation(2), std::nullopt);
    EXPECT_TRUE(receipts.empty()) << "told by a step of the main queue";
    world.queue->drain();
    boundary->drop();
    boundary->receive(reservation(3), std::nullopt);
    boundary->receive(std::nullopt, Error{"Ombrivane", 0, "refused"});
    world.queue->drain();
    EXPECT_EQ(receipts, (std::vector{2, 3}));
    EXPECT_EQ(calls, 3) << "the callback hears of them as well";
}

TEST_F(ReservationsTest, WhatNobodyHasTakenWaitsInOrder) {
    reservations.keep(reservation(1));
    std::thread([&] { reservations.keep(reservation(2)); }).join();
    world.queue->drain();
    EXPECT_EQ(reservations.pending(), 2U);
    { const auto receiver = listening(); }
    world.queue->drain();
    EXPECT_TRUE(receipts.empty()) << "who has gone is not told";
    const auto first = listening();
    const auto second = listening();
    world.queue->drain();
    EXPECT_EQ(receipts, (std::vector{1, 2})) << "each is handed out once";
    EXPECT_EQ(reservations.pending(), 0U);
    EXPECT_EQ(reservations.take(), std::nullopt);
}

TEST_F(ReservationsTest, WhoTakesOneAtATimeIsToldUntilNoneIsLeft) {
    for (const int number : {1, 2, 3})
        reservations.keep(reservation(number));
    const auto receiver = reservations.observe([this] {
        if (const auto taken = reservations.take()) receipts.push_back(taken->at("totalCost").get<int>());
    });
    world.queue->drain();
    EXPECT_EQ(receipts, (std::vector{1, 2, 3}));
}

} // namespace
} // namespace ombrivane
