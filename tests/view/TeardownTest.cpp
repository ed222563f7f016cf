#include "Walk.h"
#include "keyed/Navigator.h"

#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQmlIncubationController>

#include <sstream>

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

/// What is half made then would be complained of.
TEST(TeardownTest, aPageGoesWhileItsRowsAreBeingMade) {
    for (const bool drops : {true, false}) {
        SCOPED_TRACE(drops ? "the host drops the view" : "the customer goes back");
        service().reset();
        WalkPorts ports;
        Window window;
        auto* engine = qmlEngine(&window.session());
        engine->setIncubationController(window.window().incubationController()); // as a window in QML does
        std::istringstream toOffers("play journeys/steps/abroad.steps\nplay journeys/steps/one-way.steps\n");
        walk(ports, window, toOffers, [](const std::string&) {});
        QQuickItem* list = window.item("offers");
        ASSERT_NE(list, nullptr);
        constexpr int farAhead = 6000; // so many points of rows begin to be made
        list->setProperty("cacheBuffer", farAhead);
        window.waitFor([] { return true; });
        ASSERT_GT(engine->incubationController()->incubatingObjectCount(), 0);
        if (drops)
            window.session().drop();
        else
            window.session().navigator()->back();
        EXPECT_EQ(engine->incubationController()->incubatingObjectCount(), 0);
        window.settle();
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

} // namespace
} // namespace ombrivane::view
