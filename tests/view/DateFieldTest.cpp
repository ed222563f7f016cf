#include "Inspection.h"
#include "Walk.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDir>
#include <QtTest/QTest>

#include <array>
#include <cstdlib>

namespace ombrivane::view {
namespace {

struct Turn {
    const char* wheel;
    Qt::Key key;
    const char* day; ///< what the three wheels show then
};

/// From the proposal on, for a traveller who may be a hundred years old at the end of the journey.
constexpr const char* proposal = "1976-01-10";
constexpr std::array turns{
    Turn{"year", Qt::Key_PageUp, "1966-01-10"},
    Turn{"day", Qt::Key_End, "1966-01-31"},
    Turn{"month", Qt::Key_Down, "1966-02-28"}, // the month lacks the day
    Turn{"year", Qt::Key_End, "2026-02-28"},
    Turn{"month", Qt::Key_End, "2026-11-21"}, // today is the limit
    Turn{"year", Qt::Key_Home, "1927-11-21"},
    Turn{"month", Qt::Key_Home, "1927-01-21"},
    Turn{"day", Qt::Key_Home, "1927-01-10"}, // the earliest
    Turn{"day", Qt::Key_Up, "1927-01-10"},
};

int shownBy(Window& window, const char* wheel) {
    const QQuickItem* item = window.item(wheel);
    return item == nullptr ? -1 : item->property("currentIndex").toInt();
}

void expectWheels(Window& window, const char* day) {
    const QDate date = QDate::fromString(day, Qt::ISODate);
    EXPECT_EQ(shownBy(window, "year"), date.year() - 1927) << day;
    EXPECT_EQ(shownBy(window, "month"), date.month() - 1) << day;
    EXPECT_EQ(shownBy(window, "day"), date.day() - 1) << day;
}

std::string fieldDay(Window& window) {
    return window.item("dateOfBirth")->property("day").toString().toStdString();
}

void keepPicture(Window& window, const std::string& look) {
    const char* pictures = std::getenv("OMBRIVANE_PICTURES");
    if (pictures == nullptr) return;
    const QString folder = QString(pictures) + "/" + QString::fromStdString(look);
    EXPECT_TRUE(QDir().mkpath(folder) && window.window().grabWindow().save(folder + "/traveller-date.png"));
}

void openWheels(Window& window) {
    for (QQuickItem* item : window.visibleItems()) // it may lie below the window
        if (item->objectName() == "dateOfBirth") item->forceActiveFocus();
    window.settle();
    window.click("dateOfBirth");
    EXPECT_TRUE(window.waitFor([&] { return window.item("year") != nullptr; }));
    window.settle();
    const QQuickItem* done = window.item("done");
    ASSERT_NE(done, nullptr);
    EXPECT_LE(done->mapToScene(QPointF(0, done->height())).y(), window.window().height());
}

void chooseDate(Window& window, const std::string& look) {
    for (const Qt::Key leave : {Qt::Key_Escape, Qt::Key_Back}) {
        openWheels(window);
        expectSound(window);
        keepPicture(window, look);
        expectWheels(window, proposal);
        QTest::keyClick(&window.window(), leave);
        ASSERT_TRUE(window.waitFor([&] { return window.item("year") == nullptr; }));
        EXPECT_EQ(fieldDay(window), "") << "left without a choice";
        EXPECT_EQ(window.window().activeFocusItem(), window.item("dateOfBirth"));
    }

    openWheels(window);
    // As a finger does with a screen reader, and back.
    for (const auto& [action, day] : {std::pair(QAccessibleActionInterface::increaseAction(), "1977-01-10"),
                                      std::pair(QAccessibleActionInterface::decreaseAction(), proposal)}) {
        QAccessible::queryAccessibleInterface(window.item("year"))->actionInterface()->doAction(action);
        window.settle();
        expectWheels(window, day);
    }
    for (const auto& turn : turns) {
        window.item(turn.wheel)->forceActiveFocus();
        QTest::keyClick(&window.window(), turn.key);
        window.settle();
        expectWheels(window, turn.day);
    }
    window.click("done");
    ASSERT_TRUE(window.waitFor([&] { return window.item("year") == nullptr; }));
    EXPECT_EQ(fieldDay(window), turns.back().day);
    EXPECT_EQ(window.item("dateOfBirth")->property("value").toString().toStdString(), "Jan 10, 1927");
}

/// Wheels stay between the limits and show what is chosen; nothing is chosen before Done.
TEST(DateFieldTest, ADateIsTurnedWithinItsLimits) {
    struct Look {
        const char* name;
        int width;
        int height;
        double textScale;
    };
    for (const auto& look : {Look{"phone", 390, 844, 1},
                             Look{"narrow-large-text", 320, 568, 2},
                             Look{"lying", 640, 360, 1},
                             Look{"lying-large-text", 640, 360, 2}}) {
        SCOPED_TRACE(look.name);
        WalkPorts ports;
        Window window(look.width, look.height);
        window.setLook(false, look.textScale);
        int looks = 0;
        walk(ports, window, "tests/view/gallery/abroad.script", [&](const std::string& name) {
            if (name != "traveller") return;
            window.settle();
            ++looks;
            chooseDate(window, look.name);
        });
        EXPECT_EQ(looks, 1);
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

} // namespace
} // namespace ombrivane::view
