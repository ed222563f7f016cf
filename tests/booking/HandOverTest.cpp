#include "Wallet.h"

#include "search/MainViewModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

/// What may come between two events of a booking.
struct Interruption {
    const char* name;
    std::function<void(fakes::World&, Wallet&)> happen;
};

void back(Wallet& wallet, std::size_t times) {
    while (wallet.isShown() && times-- > 0)
        wallet.navigator().back();
}

const Interruption interruptions[] = {
    {"nothing", [](auto&, auto&) {}},
    {"back", [](auto&, Wallet& wallet) { back(wallet, 1); }},
    {"back to the results", [](auto&, Wallet& wallet) { back(wallet, 3); }},
    {"back out of the component",
     [](auto&, Wallet& wallet) {
         back(wallet, 99);
         if (wallet.isShown() && wallet.top() == "OmbrivaneView" && wallet.navigator().find("MainView"))
             wallet.tap("MainView.back");
     }},
    {"the clock", [](fakes::World& world, auto&) { world.pass(601s); }},
    {"the clock and a fresh session",
     [](fakes::World& world, Wallet& wallet) {
         world.pass(601s);
         if (!wallet.isShown() || !wallet.top().ends_with("BookingDetailsView")) return;
         wallet.tap("checkLatestFares");
         if (wallet.top() != "RulesAndRegulationView") return;
         wallet.tap("continue");
     }},
    {"back to the search", [](auto&, auto&) { AppState::shared().resetNavigation(); }},
    {"the view dropped", [](auto&, Wallet& wallet) { wallet.drop(); }},
    {"another customer signed in",
     [](auto&, Wallet& wallet) {
         wallet.drop();
         OmbrivaneView::forget();
         AppState::shared().update("another", "agent", std::nullopt, std::nullopt);
     }},
    {"the view dropped by its callback", [](auto&, Wallet& wallet) { wallet.dropsWhenCalled = true; }},
    {"the view shown again by its callback", [](auto&, Wallet& wallet) { wallet.showsWhenCalled = true; }},
};

class HandOverTest : public testing::TestWithParam<std::tuple<Trip, bool>> {
protected:
    /// The number of events of a booking that nothing interrupts.
    static std::size_t length() {
        fakes::World world;
        Wallet wallet(world, std::get<Trip>(GetParam()), std::get<bool>(GetParam()));
        wallet.wholeRoad();
        EXPECT_EQ(wallet.handedOver.size(), 1U);
        return wallet.events;
    }
};

/// Stops at every boundary between two events, in every way, and lets the service answer what is still asked.
TEST_P(HandOverTest, AReservationIsHandedOverOnceWhereverTheBookingIsInterrupted) {
    const std::size_t all = length();
    const std::string token = fakes::captured("token")["data"]["accessToken"];
    std::size_t states = 0;
    std::size_t underWay = 0;
    for (std::size_t events = 0; events <= all; ++events) {
        for (const auto& interruption : interruptions) {
            for (const bool answersWell : {true, false}) {
                SCOPED_TRACE(std::string(interruption.name) + " after event " + std::to_string(events) +
                             (answersWell ? "" : ", then failures"));
                fakes::World world;
                Wallet wallet(world, std::get<Trip>(GetParam()), std::get<bool>(GetParam()));
                wallet.limit = events;
                try {
                    wallet.wholeRoad();
                } catch (const Wallet::Stopped&) {
                }
                wallet.limit.reset();
                const bool reserving = wallet.sentTo("reservation") > 0;
                interruption.happen(world, wallet);
                if (!answersWell) {
                    world.queue->drain();
                    while (world.network->outstanding() > 0)
                        wallet.fail();
                }
                wallet.settle();
                world.pass(10min);
                EXPECT_EQ(wallet.contract(), "");
                if (answersWell) {
                    EXPECT_EQ(wallet.handedOver.size(), reserving ? 1U : 0U);
                    if (reserving) {
                        EXPECT_EQ(wallet.handedOver.front()["bearerToken"], token);
                        for (const HttpRequest& request : world.network->sent()) {
                            if (request.headers.size() < 2) continue; // has no customer yet
                            EXPECT_EQ(request.headers.back().second, "Bearer " + token) << request.url;
                        }
                    }
                }
                EXPECT_TRUE(world.takeFaults().empty());
                ++states;
                underWay += reserving ? 1 : 0;
            }
        }
        if (HasFailure()) break;
    }
    RecordProperty("events", static_cast<int>(all));
    RecordProperty("interrupted", static_cast<int>(states));
    RecordProperty("while reserving", static_cast<int>(underWay));
    std::cout << states << " states interrupted in " << all << " events, " << underWay
              << " with a reservation sent\n";
    EXPECT_GE(states, 500U);
    EXPECT_GE(underWay, std::get<bool>(GetParam()) ? 112U : 80U);
}

/// The flags of the process that keep screens on the stack and are raised.
std::vector<std::string> raisedFlags() {
    std::vector<std::string> raised;
    for (const Member* member : AppState::shared().fields.members()) {
        if (member->key().ends_with("RootViewActive") && member->read().get<bool>())
            raised.emplace_back(member->key());
    }
    return raised;
}

TEST_P(HandOverTest, AViewThatWasDroppedOnItsResultsBeginsAtTheSearchAndKeepsTheForm) {
    fakes::World world;
    Wallet wallet(world, std::get<Trip>(GetParam()));
    wallet.toGate();
    EXPECT_EQ(raisedFlags().size(), 1U);
    wallet.drop();
    EXPECT_EQ(raisedFlags(), std::vector<std::string>());
    wallet.settle();
    wallet.show();
    wallet.answer();
    EXPECT_EQ(wallet.top(), "OmbrivaneView");
    EXPECT_EQ(wallet.sentTo("search-flights"), 1U);
    EXPECT_EQ(MainViewModel::shared().departCity.get(), "Kathmandu");
}

TEST_P(HandOverTest, TheHandOverOfADroppedViewLeavesTheNextOneWhereItIs) {
    for (const bool wentBack : {false, true}) {
        fakes::World world;
        Wallet wallet(world, std::get<Trip>(GetParam()), std::get<bool>(GetParam()));
        wallet.toReady();
        wallet.tap("continue");
        if (wentBack) back(wallet, 1);
        wallet.drop();
        wallet.show();
        wallet.answer(world.network->outstanding() - 1);
        AppState::shared().onewayOriginRootViewActive = true;
        wallet.answer();
        if (wallet.documents) wallet.answer(world.network->outstanding() - 1);
        EXPECT_EQ(wallet.handedOver.size(), 1U);
        EXPECT_EQ(wallet.top(), "SelectOriginFlightView");
    }
}

/// Two views at a time are not meant to be, but a page may leave after the next one has come.
TEST(DroppedView, AViewThatLeavesLateTakesNothingFromTheOneShownAfterIt) {
    fakes::World world;
    Wallet first(world);
    first.toGate();
    world.network->answer(R"({"success":true,"hasRestrictions":false})");
    Wallet second(world);
    second.show();
    second.answer();
    EXPECT_EQ(second.top(), "OmbrivaneView");
    AppState::shared().onewayDestinationRootViewActive = true;
    first.drop();
    EXPECT_EQ(second.top(), "SelectDestinationFlightView");
    second.drop();
    EXPECT_EQ(raisedFlags(), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Trips, HandOverTest, everyTrip, tripName);

} // namespace
} // namespace ombrivane
