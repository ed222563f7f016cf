#include "Walk.h"

#include "words/Words.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace ombrivane::view {
namespace {

/// A wallet that says in QML what it wants.
constexpr const char* speakingWallet = R"(
import QtQuick
import Ombrivane
Window {
    visible: true
    OmbrivaneView {
        objectName: "component"
        anchors.fill: parent
        clientId: "wallet"; clientSecret: "wallet-secret"; reducedMotion: true
        language: "ne"; region: "NP"; texts: ({ searchFlights: "Nepal by air" })
    }
})";

/// One whose own pages are mirrored.
constexpr const char* mirroredWallet = R"(
import QtQuick
import Ombrivane
Window {
    visible: true
    Item {
        anchors.fill: parent
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true
        OmbrivaneView {
            objectName: "component"
            anchors.fill: parent
            clientId: "wallet"; clientSecret: "wallet-secret"; reducedMotion: true
        }
    }
})";

double middleOf(Window& window, const QString& name) {
    const QQuickItem* item = window.item(name);
    return item != nullptr ? item->mapToScene(QPointF(item->width() / 2, 0)).x() : -1;
}

bool shows(Window& window, const QString& text) {
    const auto items = window.visibleItems();
    return std::any_of(items.begin(), items.end(), [&](const QQuickItem* item) {
        return item->property("text").toString() == text;
    });
}

QString words(const char* language, Text text) {
    chooseLanguage({.language = language, .region = {}, .texts = {}});
    const QString said = QString::fromStdString(ombrivane::said(text));
    chooseLanguage({});
    return said;
}

TEST(LanguageTest, AWalletInQmlSaysItsLanguageAndChangesItWhileThePagesAreShown) {
    const WalkPorts ports;
    const QString english = words("en", Text::searchTitle);
    const QString nepali = words("ne", Text::searchTitle);
    ASSERT_NE(english, nepali);
    Window window(speakingWallet);
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    EXPECT_TRUE(Window::waitFor([&] { return shows(window, nepali); }));
    EXPECT_TRUE(shows(window, "Nepal by air"));
    window.session().resetLanguage();
    EXPECT_TRUE(Window::waitFor([&] { return shows(window, english); }));
    EXPECT_TRUE(shows(window, "Nepal by air"));
    window.session().setTexts({});
    window.session().setLanguage("ne-NP");
    EXPECT_TRUE(Window::waitFor([&] { return shows(window, nepali); }));
    EXPECT_FALSE(shows(window, "Nepal by air"));
    EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    chooseLanguage({});
}

/// What stands on a card and is said of it.
TEST(LanguageTest, OffersThatAreShownAreToldInTheNextLanguage) {
    WalkPorts ports;
    Window window(390, 844);
    std::istringstream list("play journeys/steps/abroad.steps\n"
                            "tap OneWayView.tapDate\n"
                            "tap CustomOneWayDatePickerView.tapDay \"2027-01-10\"\n"
                            "tap CustomOneWayDatePickerView.done\n"
                            "tap OneWayView.search\n"
                            "wait FlightListView.isLoading false\n"
                            "look list\n");
    const auto told = [&] {
        auto* offer = QAccessible::queryAccessibleInterface(window.item("offer"));
        return offer != nullptr ? offer->text(QAccessible::Name) : QString();
    };
    walk(ports, window, list, [&](const std::string&) {
        window.settle();
        ASSERT_TRUE(told().contains("Jan 10, 2027")) << told().toStdString();
        window.session().setLanguage("ne-NP");
        window.settle();
        EXPECT_TRUE(told().contains(QString::fromUtf8("१०"))) << told().toStdString();
        EXPECT_FALSE(told().contains("Jan 10, 2027")) << told().toStdString();
    });
    EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    chooseLanguage({});
}

TEST(LanguageTest, TheLanguageAloneMirrorsThePages) {
    for (const char* host : {speakingWallet, mirroredWallet}) {
        const WalkPorts ports;
        Window window(host);
        window.session().setTexts({});
        window.session().setLanguage("en");
        window.open();
        ASSERT_TRUE(window.waitForScreen("MainView"));
        window.settle();
        EXPECT_LT(middleOf(window, "tab0"), middleOf(window, "tab2"));
        EXPECT_NEAR(middleOf(window, "chosenTab"), middleOf(window, "tab0"), 1);
        window.session().setLanguage("ar");
        EXPECT_TRUE(Window::waitFor([&] { return middleOf(window, "tab0") > middleOf(window, "tab2"); }));
        EXPECT_TRUE(Window::waitFor(
            [&] { return std::abs(middleOf(window, "chosenTab") - middleOf(window, "tab0")) <= 1; }));
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
        chooseLanguage({});
    }
}

} // namespace
} // namespace ombrivane::view
