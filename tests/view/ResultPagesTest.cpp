#include "Inspection.h"
#include "Walk.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QQmlProperty>
#include <QTest>

#include <algorithm>
#include <sstream>

namespace ombrivane::view {
namespace {

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

TEST(ResultPagesTest, AWideWindowShowsTheFilterBesideTheListAndANarrowOneOverIt) {
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
            // As a finger moves it with a screen reader.
            auto* slider = window.item("price");
            ASSERT_NE(slider, nullptr);
            const QString dearest = slider->property("valueText").toString();
            QAccessible::queryAccessibleInterface(slider)->actionInterface()->doAction(
                QAccessibleActionInterface::decreaseAction());
            EXPECT_NE(slider->property("valueText").toString(), dearest);
        });
        EXPECT_EQ(looks, 1);
    }
}

/// Beneath the sentence stands by how much; and without a connection the search can be sent again.
TEST(ResultPagesTest, ARefusedOfferSaysWhatIsMissingAndALostConnectionIsTriedAgain) {
    constexpr const char* lines = "play journeys/steps/abroad.steps\n"
                                  "play journeys/steps/one-way.steps\n"
                                  "tap FlightListView.rows[0].tap\n"
                                  "tap continue\n"
                                  "look refused\n"
                                  "reachability 0\n"
                                  "tap FlightListView.nextDeparture\n"
                                  "wait model.noInternetConnection true\n"
                                  "look offline\n"
                                  "wait model.isLoading false\n"
                                  "expect model.noInternetConnection false\n";
    for (const auto& [width, textScale] : {std::pair(390, 1.0), std::pair(320, 2.0)}) {
        SCOPED_TRACE(width);
        int looks = 0;
        WalkPorts ports;
        Window window(width, 844);
        window.setLook(false, textScale);
        window.session().walletBalance = 100;
        std::istringstream script(lines);
        walk(ports, window, script, [&](const std::string& name) {
            ++looks;
            window.settle();
            expectSound(window);
            if (name == "refused") {
                const QQuickItem* detail = window.item("snackDetail");
                ASSERT_NE(detail, nullptr);
                const QString told = detail->property("text").toString();
                EXPECT_TRUE(told.startsWith("Your balance is NPR 100.")) << told.toStdString();
            } else {
                ports.reachability->say(reachableFlag);
                for (QQuickItem* item : window.visibleItems()) {
                    if (item->objectName() == "action") item->forceActiveFocus();
                }
                QTest::keyClick(&window.window(), Qt::Key_Return);
            }
        });
        EXPECT_EQ(looks, 2);
    }
}

/// Cards are used again as the list is scrolled: each shows the offer of its place, there and back again.
TEST(ResultPagesTest, EveryRowShowsItsOwnOfferWhileTheListIsScrolled) {
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

/// The page of the list, and the offer to which its strip has led.
QQuickItem* listPage(Window& window) {
    QQuickItem* list = window.item("offers");
    return list != nullptr ? list->parentItem() : nullptr;
}

/// How far the wanted offer, or the head of the list, is from the place where it belongs.
double distance(Window& window, bool offer) {
    const QQuickItem* page = listPage(window);
    const QQuickItem* list = window.item("offers");
    const double at = list->property("contentY").toDouble();
    if (!offer) return at - list->property("originY").toDouble() + list->property("topMargin").toDouble();
    const auto* rows = QQmlProperty::read(page, "screen.rows").value<QObject*>();
    int position = -1;
    QMetaObject::invokeMethod(const_cast<QObject*>(rows),
                              "positionOf",
                              Q_RETURN_ARG(int, position),
                              Q_ARG(QString, QQmlProperty::read(page, "screen.scrollToId").toString()));
    QQuickItem* row = nullptr;
    QMetaObject::invokeMethod(
        const_cast<QQuickItem*>(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, position));
    constexpr double gap = 12;
    return row != nullptr ? row->y() - at - page->property("collapsedInset").toDouble() - gap : 10000;
}

TEST(ResultPagesTest, AMovementOfTheListEndsAtItsItemAndOtherOffersStartAtTheirHead) {
    int looks = 0;
    WalkPorts ports;
    Window window;
    walk(ports, window, "tests/view/gallery/strip.script", [&](const std::string& name) {
        window.settle();
        ++looks;
        if (name == "near") return;
        SCOPED_TRACE(looks);
        EXPECT_NEAR(distance(window, name == "offer"), 0, 1);
    });
    EXPECT_EQ(looks, 11);
}

/// With motion.
constexpr const char* lively = R"(
import QtQuick
import Ombrivane
Window {
    visible: true
    OmbrivaneView {
        objectName: "component"
        anchors.fill: parent
        clientId: "wallet"
        clientSecret: "wallet-secret"
    }
})";

TEST(ResultPagesTest, AFingerStopsTheMovementOfTheListWhichElseEndsAtItsItem) {
    std::istringstream lines("play journeys/steps/home.steps\nplay journeys/steps/one-way.steps\n"
                             "tap DomesticFlightListView.strip[30].tap\nlook moving\n"
                             "expect model.showContinueButton false\n"
                             "tap DomesticFlightListView.rows[14].tap\n"
                             "tap DomesticFlightListView.strip[24].tap\nlook arrived\n");
    int looks = 0;
    WalkPorts ports;
    Window window(lively, 390, 844);
    walk(ports, window, lines, [&](const std::string& name) {
        ++looks;
        QTest::qWait(300); // the page slides in
        const QQuickItem* list = window.item("offers");
        ASSERT_NE(list, nullptr);
        if (name == "arrived") {
            EXPECT_TRUE(Window::waitFor([&] { return std::abs(distance(window, true)) < 1; }));
            QTest::qWait(150);
            EXPECT_NEAR(distance(window, true), 0, 1);
            return;
        }
        const auto place = [&] { return list->property("contentY").toDouble(); };
        const double start = place();
        EXPECT_TRUE(Window::waitFor([&] { return place() > start + 40; })) << "it moves";
        QTest::mousePress(&window.window(), Qt::LeftButton, {}, QPoint(195, 600));
        const double stopped = place();
        QTest::qWait(150);
        EXPECT_EQ(place(), stopped);
        QTest::mouseRelease(&window.window(), Qt::LeftButton, {}, QPoint(195, 600));
    });
    EXPECT_EQ(looks, 2);
}

/// The filter lies over no offer: it stands beside them, or in a bar that ends the list.
void expectFilterAside(Window& window) {
    const QQuickItem* filter = window.item("filter");
    ASSERT_NE(filter, nullptr);
    const QRectF button = placeOf(*filter);
    double end = window.window().height();
    for (const char* bar : {"floatingBar", "total"}) {
        const QQuickItem* item = window.item(bar);
        if (item != nullptr && placeOf(*item).width() >= window.width())
            end = std::min(end, placeOf(*item).top());
    }
    for (const QQuickItem* offer : offersOf(window)) {
        const QRectF seen = placeOf(*offer).intersected(QRectF(0, 0, window.width(), end));
        EXPECT_FALSE(seen.intersects(button)) << seen.bottom() << " over " << button.top();
    }
}

/// The last offer can be scrolled clear of what stands at the foot.
void expectLastOfferFree(Window& window, QQuickItem& list) {
    list.setProperty("pinned", false);
    QMetaObject::invokeMethod(&list, "positionViewAtEnd");
    list.setProperty("contentY",
                     list.property("originY").toDouble() + list.property("contentHeight").toDouble() +
                         list.property("bottomMargin").toDouble() - list.height());
    window.settle();
    const auto offers = offersOf(window);
    ASSERT_FALSE(offers.empty());
    for (const char* bar : {"floatingBar", "total"}) {
        const QQuickItem* item = window.item(bar);
        if (item == nullptr || placeOf(*item).width() < window.width()) continue;
        EXPECT_LE(placeOf(*offers.back()).bottom(), placeOf(*item).top()) << bar;
    }
}

/// The name by which assistive technology calls the item, wherever it is scrolled to.
std::string heardName(Window& window, const char* name) {
    for (QQuickItem* item : window.visibleItems()) {
        if (item->objectName() != name) continue;
        return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name).toStdString();
    }
    return "nothing";
}

/// What was chosen on each tab, there and in the total.
void expectSteps(Window& window, bool chosen) {
    EXPECT_EQ(heardName(window, "departingFlights"),
              chosen ? "Departing Flights, chosen: 13:20, NPR 3,856" : "Departing Flights, Choose");
    EXPECT_EQ(heardName(window, "returningFlights"),
              chosen ? "Returning Flights, chosen: 09:35, NPR 4,059" : "Returning Flights, Choose");
    const auto items = window.visibleItems();
    const auto count = [&](const char* name) {
        return std::count_if(
            items.begin(), items.end(), [&](const auto* item) { return item->objectName() == name; });
    };
    EXPECT_EQ(count("tick"), chosen ? 2 : 0);
    EXPECT_EQ(count("open"), chosen ? 0 : 2);
}

/// With little height or large letters offers stay in sight, also below the total of what is chosen; nothing
/// lies over them, and a duration is never parted.
TEST(ResultPagesTest, AShortPageKeepsOffersInSight) {
    struct Case {
        int width;
        int height;
        double textScale;
        bool startsInSight;
    };
    for (const Case& look : {Case{844, 390, 1, true},
                             Case{320, 568, 2, false},
                             Case{320, 640, 1, true},
                             Case{390, 844, 1, true}}) {
        SCOPED_TRACE(look.width);
        int looks = 0;
        WalkPorts ports;
        Window window(look.width, look.height);
        window.setLook(false, look.textScale);
        walk(ports, window, "tests/view/gallery/short.script", [&](const std::string& name) {
            ++looks;
            window.settle();
            expectSound(window);
            QQuickItem* list = window.item("offers");
            ASSERT_NE(list, nullptr);
            for (const QQuickItem* item : window.visibleItems()) {
                if (item->objectName() != "date" || look.width != 390) continue;
                EXPECT_EQ(item->property("lineCount").toInt(), 1);
            }
            for (const QQuickItem* item : window.visibleItems()) {
                if (item->objectName() != "duration") continue;
                EXPECT_EQ(item->property("lineCount").toInt(), 1);
            }
            expectSteps(window, name == "chosen");
            expectFilterAside(window);
            constexpr double enough = 90;
            if (name == "list") {
                EXPECT_NE(window.item("dateIcon"), nullptr);
                const auto offers = offersOf(window);
                ASSERT_EQ(offers.empty(), !look.startsInSight);
                if (offers.empty()) return;
                EXPECT_LE(placeOf(*offers.front()).top() + enough, look.height);
            } else {
                list->setProperty("pinned", false);
                list->setProperty("contentY", 300);
                window.settle();
                const QQuickItem* header = window.item("resultsHeader");
                const double top = header != nullptr ? placeOf(*header).bottom() : 0;
                EXPECT_GE(placeOf(*window.item("total")).top() - top, look.height / 3.0);
                const bool room = look.textScale == 1;
                EXPECT_EQ(heardName(window, "firstPart"), room ? "Departure NPR 3,856" : "nothing");
                EXPECT_EQ(heardName(window, "secondPart"), room ? "+ Return NPR 4,059" : "nothing");
            }
            if (const char* folder = std::getenv("OMBRIVANE_PICTURES"); folder != nullptr)
                window.window().grabWindow().save(
                    QString("%1/short-%2-%3.png").arg(folder).arg(look.width).arg(name.c_str()));
            expectLastOfferFree(window, *list);
        });
        EXPECT_EQ(looks, 2);
    }
}

} // namespace
} // namespace ombrivane::view
