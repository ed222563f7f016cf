#include "Window.h"

#include "keyed/Navigator.h"

#include <gtest/gtest.h>

namespace ombrivane::view {
namespace {

TEST(TeardownTest, twoViewsAreOpenedAndDroppedInTheMiddleOfARequest) {
    service().setFaults({"/get-token latency=150"});
    {
        Window first;
        Window second;
        first.open();
        second.open();
        first.session().drop();
        EXPECT_TRUE(second.waitForScreen("MainView"));
        EXPECT_EQ(first.callbacks + second.callbacks, 0);
        second.open();
    }
    service().setFaults({});
}

TEST(TeardownTest, aViewIsDroppedWhileItsAirportsAreOnTheirWay) {
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    service().setFaults({"/search-airports latency=200"});
    window.click("origin");
    ASSERT_TRUE(window.waitForScreen("SelectOriginFlightView"));
    window.session().drop();
    service().setFaults({});
    window.open();
    EXPECT_TRUE(window.waitForScreen("MainView"));
}

} // namespace
} // namespace ombrivane::view
