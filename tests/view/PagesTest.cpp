#include "Inspection.h"
#include "Walk.h"

#include "items/Announcement.h"
#include "keyed/Navigator.h"

#include <gtest/gtest.h>

#include <QQmlProperty>

#include <algorithm>
#include <map>

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

/// What was last given to assistive technology to be said.
std::vector<std::string> announced(Window& window) {
    std::vector<std::string> texts;
    for (const QQuickItem* item : window.visibleItems()) {
        if (const auto* said = qobject_cast<const Announcement*>(item))
            texts.push_back(said->text().toStdString());
    }
    return texts;
}

void expectKeyboardAt(Window& window, const char* name) {
    const QQuickItem* focused = window.window().activeFocusItem();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->objectName(), name);
    const double top = focused->mapToScene(QPointF()).y();
    EXPECT_GT(top, 0);
    EXPECT_LT(top + focused->height(), window.window().height());
}

/// What a customer cannot see is said: that something is awaited, what is wrong, that the time is short. A
/// form that was not saved leads to the first field that is missing.
TEST(PagesTest, WhatHappensIsSaidAloudAndTheFirstMissingFieldHasTheFocus) {
    const std::map<std::string, std::string> expected{
        {"awaited", "Fetching the fare rules"},
        {"message", "Please fill the details for emergency contact."},
        {"marked", "Please fill the marked fields."},
        {"last-minute", "Less than a minute left for confirmation"}};
    std::size_t looks = 0;
    WalkPorts ports;
    Window window(320, 568);
    walk(ports, window, "tests/view/gallery/said.script", [&](const std::string& name) {
        window.settle();
        const auto said = announced(window);
        EXPECT_EQ(std::count(said.begin(), said.end(), expected.at(name)), 1) << name;
        if (name == "marked") expectKeyboardAt(window, "documentNumber");
        ++looks;
    });
    EXPECT_EQ(looks, expected.size());
}

QRectF placeOf(const QQuickItem& item) { return item.mapRectToScene(QRectF(QPointF(), item.size())); }

/// The offers in the window from the top down.
std::vector<const QQuickItem*> offersOf(Window& window) {
    std::vector<const QQuickItem*> offers;
    for (const QQuickItem* item : window.visibleItems()) {
        const bool inside = placeOf(*item).intersects(QRectF(QPointF(), window.window().size()));
        if (item->objectName() == "offer" && inside) offers.push_back(item);
    }
    std::sort(offers.begin(), offers.end(), [](const auto* one, const auto* other) {
        return placeOf(*one).top() < placeOf(*other).top();
    });
    return offers;
}

TEST(PagesTest, AWideWindowShowsTheFilterBesideTheListAndANarrowOneOverIt) {
    struct Case {
        int width;
        bool covered;
    };
    for (const Case& look : {Case{1024, false}, Case{840, false}, Case{839, true}}) {
        SCOPED_TRACE(look.width);
        int looks = 0;
        WalkPorts ports;
        Window window(look.width, 768);
        walk(ports, window, "tests/view/gallery/wide.script", [&](const std::string& name) {
            window.settle();
            if (name != "filter") return;
            ++looks;
            expectSound(window);
            const QQuickItem* apply = window.item("apply");
            ASSERT_NE(apply, nullptr);
            const auto offers = offersOf(window);
            ASSERT_FALSE(offers.empty());
            for (const QQuickItem* offer : offers) {
                const bool beside = placeOf(*apply).right() <= placeOf(*offer).left();
                EXPECT_EQ(beside, !look.covered);
                EXPECT_LE(placeOf(*offer).right(), look.width);
            }
        });
        EXPECT_EQ(looks, 1);
    }
}

/// Cards are used again as the list is scrolled: each shows the offer of its place, there and back again.
TEST(PagesTest, EveryRowShowsItsOwnOfferWhileTheListIsScrolled) {
    WalkPorts ports;
    Window window;
    walk(ports, window, "tests/view/gallery/wide.script", [&](const std::string& name) {
        if (name != "list") return;
        window.settle();
        QQuickItem* list = window.item("offers");
        ASSERT_NE(list, nullptr);
        const auto shownPrices = [&] {
            std::vector<std::string> prices;
            for (const QQuickItem* offer : offersOf(window))
                prices.push_back(QQmlProperty::read(offer, "row.price").toString().toStdString());
            return prices;
        };
        const auto before = shownPrices();
        ASSERT_GE(before.size(), 3U);
        EXPECT_TRUE(
            std::none_of(before.begin(), before.end(), [](const auto& price) { return price.empty(); }));
        list->setProperty("pinned", false);
        QMetaObject::invokeMethod(list, "positionViewAtEnd");
        window.settle();
        EXPECT_NE(shownPrices(), before);
        QMetaObject::invokeMethod(list, "positionViewAtBeginning");
        window.settle();
        auto after = shownPrices();
        ASSERT_GE(after.size(), before.size());
        after.resize(before.size()); // the header may be out of view now, and make room for one more
        EXPECT_EQ(after, before);
    });
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
