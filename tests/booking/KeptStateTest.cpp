#include "Wallet.h"
#include "base/SharedInstance.h"
#include "search/MainViewModel.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

/// A wallet whose process ends in the background.
class KeptStateTest : public testing::TestWithParam<std::tuple<Trip, bool>> {
protected:
    /// What the process knew is gone; the service answers the next one's request for a token.
    void beginAnew(const std::string& state) {
        wallet.drop();
        wallet.settle();
        dropSharedInstances();
        wallet.restoring = state;
        wallet.show();
        wallet.answer();
    }
    static Json form() { return readAll(MainViewModel::shared().fields); }

    fakes::World world;
    const Trip trip = std::get<Trip>(GetParam());
    Wallet wallet{world, trip};
};

INSTANTIATE_TEST_SUITE_P(Trips, KeptStateTest,
                         testing::Combine(testing::Values(oneWayTrip, roundTrip, specialTrip),
                                          testing::Values(false)),
                         tripName);

TEST_P(KeptStateTest, ANewProcessStandsWhereTheLastOneStood) {
    auto& model = MainViewModel::shared();
    model.adult = "3";
    model.infant = "2";
    model.cabinClass = "Business Class";
    model.originText = "Kathmandu, KTM";
    AppState::shared().nationalityText = "Indian";
    wallet.toSession();
    const Json before = form();
    const Json searched = Json::parse(*world.network->sent().at(1).body);
    const std::string state = wallet.saveState();
    EXPECT_EQ(state.find(AppState::shared().accessToken.get()), std::string::npos);

    beginAnew(state);
    EXPECT_EQ(wallet.get("MainView.tabSelection"), trip.tab);
    EXPECT_TRUE(wallet.top().ends_with("FlightListView")) << wallet.top();
    EXPECT_EQ(wallet.lastSent(), searched) << "the same search again";
    EXPECT_EQ(AppState::shared().nationalityText.get(), "Indian");
    Json after = form();
    after["returnDateText"] = before["returnDateText"]; // shown from the date
    EXPECT_EQ(after, before);
    wallet.tap("back");
    EXPECT_EQ(wallet.top(), "OmbrivaneView");
}

TEST_P(KeptStateTest, DaysThatHaveGoneByAreAskedForAgain) {
    wallet.toSession();
    const std::string state = wallet.saveState();
    wallet.drop();
    world.pass(std::chrono::hours(24 * 400));
    beginAnew(state);
    EXPECT_EQ(wallet.top(), "OmbrivaneView") << "the form";
    EXPECT_EQ(MainViewModel::shared().departCityCode.get(), "KTM");
    EXPECT_EQ(MainViewModel::shared().departureDateText.get(), "");
    EXPECT_EQ(MainViewModel::shared().returnDateText.get(), "");
    EXPECT_TRUE(MainViewModel::shared().departureDate.get() == calendar::today());
}

TEST_P(KeptStateTest, WhatIsDamagedOrAnotherVersionsIsRefused) {
    wallet.toSession();
    const std::string state = wallet.saveState();
    EXPECT_TRUE(OmbrivaneView::isState(state));
    std::string another = state;
    another[0] = '2';
    EXPECT_FALSE(OmbrivaneView::isState(another));
    for (std::size_t length = 0; length < state.size(); length += 7)
        EXPECT_FALSE(OmbrivaneView::isState(state.substr(0, length))) << length;
    for (std::size_t at = 0; at < state.size(); at += 3) {
        std::string altered = state;
        altered[at] ^= 1;
        EXPECT_FALSE(OmbrivaneView::isState(altered)) << altered;
    }
    // Whole, and still not the component's: a count that is none.
    MainViewModel::shared().adult = "many";
    EXPECT_FALSE(OmbrivaneView::isState(wallet.saveState()));

    MainViewModel::shared().adult = "1";
    beginAnew(another);
    EXPECT_EQ(wallet.top(), "OmbrivaneView");
    EXPECT_EQ(MainViewModel::shared().departCityCode.get(), "");
}

TEST_P(KeptStateTest, TheNextCustomerFindsNothingOfTheLast) {
    wallet.balance = 1e9;
    wallet.toSession();
    wallet.drop();
    OmbrivaneView::forget();
    EXPECT_EQ(form(), readAll(MainViewModel().fields));
    EXPECT_EQ(readAll(AppState::shared().fields), readAll(AppState().fields));
    wallet.balance.reset();
    wallet.show();
    wallet.answer();
    EXPECT_EQ(wallet.top(), "OmbrivaneView");
    EXPECT_EQ(AppState::shared().walletBalance.get(), std::nullopt);
}

} // namespace
} // namespace ombrivane
