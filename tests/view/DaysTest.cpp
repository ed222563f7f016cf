#include "Walk.h"

#include "dates/DateWheels.h"
#include "platform/Platform.h"
#include "platform/SystemLocalization.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>

#include <regex>
#include <sstream>

namespace ombrivane::view {
namespace {

/// Turns a wheel by clicks on the entry beside the chosen one until it stands at `index`.
void turnWheel(Window& window, const char* name,
               const std::function<DateWheels::Wheel(const DateWheels&)>& of, const DateWheels& target) {
    QQuickItem* wheel = window.item(name);
    ASSERT_NE(wheel, nullptr) << name;
    const auto chosen = [&] { return wheel->property("currentIndex").toInt(); };
    const int index = of(target).index;
    // A click while the wheel still moves stops it and chooses nothing, so some have to be made again.
    for (int clicks = 0; chosen() != index; ++clicks) {
        ASSERT_LT(clicks, 100) << name << " stays at " << chosen();
        const int step = index > chosen() ? 1 : -1;
        const QPointF entry(wheel->width() / 2,
                            wheel->height() / 2 + step * wheel->property("entryHeight").toReal());
        QTest::mouseClick(&window.window(), Qt::LeftButton, {}, wheel->mapToScene(entry).toPoint());
        QTest::qWait(60);
    }
}

/// Opens the wheels of a field, turns them to a day and says Done. Year, month, day: in this order no limit
/// is in the way of the days that this test chooses.
void turn(Window& window, const std::string& arguments) {
    std::istringstream words(arguments);
    std::string field;
    std::string day;
    words >> field >> day;
    QQuickItem* item = nullptr;
    for (QQuickItem* visible : window.visibleItems())
        if (visible->objectName() == QString::fromStdString(field)) item = visible;
    ASSERT_NE(item, nullptr) << field;
    item->forceActiveFocus(); // which brings it into view
    window.settle();
    const auto limit = [item](const char* name) {
        return Day::parse(item->property(name).toString().toStdString());
    };
    DateWheels target(limit("earliest").value(), limit("latest"));
    target.choose(Day::parse(day));
    window.click(QString::fromStdString(field));
    ASSERT_TRUE(window.waitFor([&] { return window.item("year") != nullptr; }));
    window.settle();
    turnWheel(window, "year", &DateWheels::years, target);
    turnWheel(window, "month", &DateWheels::months, target);
    turnWheel(window, "day", &DateWheels::days, target);
    window.click("done");
    ASSERT_TRUE(window.waitFor([&] { return window.item("year") == nullptr; }));
    EXPECT_EQ(item->property("day").toString().toStdString(), day);
}

/// The body of each request with a day in it.
std::string bodiesSent() {
    std::string bodies;
    for (const auto& request : service().requests())
        if (request.path.ends_with("/search-flights") || request.path.ends_with("/reservation"))
            bodies += request.path + " " + request.body + "\n";
    // The identities of passengers are made afresh for each booking.
    static const std::regex identity(R"("id":"[0-9A-Fa-f-]{36}")");
    return std::regex_replace(bodies, identity, R"("id":"")");
}

/// One booking on the pages in `locale` and `zone`. @return what was sent
std::string book(const char* locale, const char* zone) {
    service().reset();
    WalkPorts ports;
    Platform device = platform();
    const auto localization = std::make_shared<SystemLocalization>();
    localization->useLocale(locale);
    localization->useTimeZone(zone);
    device.localization = localization;
    Platform::install(std::move(device));
    Window window;
    walk(ports,
         window,
         "tests/view/gallery/days.script",
         [&](const std::string&) { EXPECT_TRUE(window.waitFor([&] { return window.callbacks > 0; })); },
         {{"click", [&](const std::string& name) { window.click(QString::fromStdString(name)); }},
          {"turn", [&](const std::string& arguments) { turn(window, arguments); }}});
    for (const auto& warning :
         window.takeWarnings()) // of pages; that a font lacks a script is none of theirs
        EXPECT_EQ(warning.find("qrc:"), std::string::npos) << warning;
    return bodiesSent();
}

TEST(DaysTest, WhatIsClickedIsWhatIsSentWhateverTheDeviceSpeaksAndWhereverItIs) {
    const std::string sent = book("en_US", "Asia/Kathmandu");
    for (const char* day : {R"("depart_date":"2026-12-10")",
                            R"("depart_date":"2026-12-11")",
                            R"("return_date":"2026-12-18")",
                            R"("return_date":"2026-12-19")",
                            R"("dob":"1978-05-17")",
                            "2028-08-14"})
        EXPECT_NE(sent.find(day), std::string::npos) << day;
    const std::pair<const char*, const char*> devices[] = {
        {"ne_NP", "Asia/Kathmandu"},
        {"ar_EG", "Etc/GMT+12"},
        {"ar_SA", "Etc/GMT-14"},
        {"fa_IR", "Asia/Kathmandu"},
        {"th_TH", "Etc/GMT-14"},
        {"bn_BD", "Etc/GMT+12"},
    };
    for (const auto& [locale, zone] : devices) {
        SCOPED_TRACE(std::string(locale) + " " + zone);
        EXPECT_EQ(book(locale, zone), sent);
    }
}

} // namespace
} // namespace ombrivane::view
