#include "Inspection.h"

#include "support/Navigator.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace ombrivane::view {
namespace {

std::string top(Window& window) { return std::string(window.session().navigator()->top()->name()); }

TEST(PagesTest, theSearchFormAnswersClicks) {
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    ASSERT_TRUE(window.waitFor([&] { return window.item("search") != nullptr; }));
    expectSound(window);

    window.click("search");
    ASSERT_TRUE(window.waitForScreen("AlertView"));
    expectSound(window);
    window.click("dismiss");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));

    window.click("tab2"); // not available: the form stays
    ASSERT_TRUE(window.waitForScreen("AlertView"));
    window.click("dismiss");
    EXPECT_EQ(window.item("returnDate"), nullptr);
    window.click("tab1");
    EXPECT_TRUE(window.waitFor([&] { return window.item("returnDate") != nullptr; }));
    window.click("tab0");
}

TEST(PagesTest, anAirportAndTheTravellersAreChosenByHand) {
    Window window(320, 640);
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));

    window.click("origin");
    ASSERT_TRUE(window.waitForScreen("SelectOriginFlightView"));
    window.click("row");
    ASSERT_TRUE(window.waitForScreen("SelectDestinationFlightView"));
    expectSound(window);
    window.click("row");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));
    EXPECT_FALSE(window.item("origin")->property("value").toString().isEmpty());
    EXPECT_FALSE(window.item("destination")->property("value").toString().isEmpty());

    window.click("travellers");
    ASSERT_TRUE(window.waitForScreen("TravellerBottomSheetView"));
    expectSound(window);
    window.click("done");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));

    window.click("nationality");
    ASSERT_TRUE(window.waitForScreen("NationalityBottomSheetView"));
    expectSound(window);
    EXPECT_TRUE(window.session().stage()->back());
    EXPECT_EQ(top(window), "OmbrivaneView");
}

TEST(PagesTest, theBackControlClosesWithoutAWordToTheHost) {
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    window.click("leave");
    EXPECT_TRUE(window.waitFor([&] { return window.closings == 1; }));
    EXPECT_EQ(window.callbacks, 0);
}

TEST(PagesTest, aRefusedTokenReachesTheHostOnceAndCloses) {
    service().setFaults({"/get-token refuse=Not today. times=1"});
    Window window;
    window.open();
    EXPECT_TRUE(window.waitFor([&] { return window.closings == 1; }));
    EXPECT_EQ(window.callbacks, 1);
    service().setFaults({});
}

} // namespace
} // namespace ombrivane::view
