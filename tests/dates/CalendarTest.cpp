#include "dates/Calendar.h"

#include "dates/DateFormatter.h"
#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

Date at(const char* text) { return parseIso(text).value(); }
Day day(const char* text) { return Day::parse(text).value(); }

/// A device somewhere.
class CalendarTest : public testing::Test {
protected:
    void device(const std::string& zone, const std::string& locale = "en_US") {
        world.localization->zone = zone;
        world.localization->localeName = locale;
    }
    fakes::World world;
};

TEST(Date, ReadsItsOwnFormsWithOffsetsAndNoOthers) {
    struct Case {
        const char* text;
        const char* point; ///< nullptr: refused
    };
    const Case cases[] = {
        {"2026-11-21", "2026-11-21T00:00:00Z"},
        {"2026-11-21T09:30:05", "2026-11-21T09:30:05Z"},
        {"2026-11-21T00:30:00+05:45", "2026-11-20T18:45:00Z"},
        {"2026-12-31T20:00:00-05:00", "2027-01-01T01:00:00Z"},
        {"1969-12-31T23:59:59Z", "1969-12-31T23:59:59Z"},
        {"2028-02-29", "2028-02-29T00:00:00Z"},
        {"2026-02-29", nullptr},
        {"2026-13-01", nullptr},
        {"2026-11-21T24:00:00", nullptr},
        {"2026-11-21T09:30:60", nullptr},
        {"2026-11-21 09:30:00", nullptr},
        {"2026-11-21T09:30:00+0545", nullptr},
        {"2026-11-21T09:30:00Zulu", nullptr},
        {"2026-+1-21", nullptr},
        {"2026-11-2", nullptr},
        {"", nullptr},
    };
    for (const auto& [text, point] : cases) {
        const auto date = parseIso(text);
        EXPECT_EQ(date ? isoText(*date) : "refused", point != nullptr ? point : "refused") << text;
    }
    EXPECT_EQ(isoText(at("1970-01-01") - 1ms), "1969-12-31T23:59:59Z");
}

TEST(Day, IsExactlyItsTextAndKeepsToTheMonths) {
    for (const char* text : {"2026-11-21", "2028-02-29", "1926-04-19", "0001-01-01", "9999-12-31"})
        EXPECT_EQ(day(text).text(), text);
    for (const char* text : {"",
                             "2027-02-30",
                             "2026-02-29",
                             "2027-1-1",
                             "2027-01-10T00:00",
                             "2027-01-10 ",
                             "10-01-2027",
                             "2027-13-01",
                             "2027-00-10",
                             "२०२७-०१-१०"})
        EXPECT_FALSE(Day::parse(text)) << text;
    EXPECT_LT(day("2026-12-31"), day("2027-01-01"));
    EXPECT_EQ(day("2026-11-21").weekday(), 7);
    EXPECT_EQ(day("2026-12-30").plusDays(3).text(), "2027-01-02");
    EXPECT_EQ(day("2026-01-31").plusMonths(1).text(), "2026-02-28");
    EXPECT_EQ(day("2026-11-21").plusMonths(-13).text(), "2025-10-21");
    EXPECT_EQ(day("2028-02-29").plusYears(-12).text(), "2016-02-29");
    EXPECT_EQ(day("2028-02-29").plusYears(-2).text(), "2026-02-28");
}

TEST_F(CalendarTest, TodayIsTheDayOfTheDevicesZone) {
    struct Case {
        const char* zone;
        const char* now;
        const char* today;
    };
    const Case cases[] = {
        {"Asia/Kathmandu", "2026-11-20T18:14:59Z", "2026-11-20"},
        {"Asia/Kathmandu", "2026-11-20T18:15:00Z", "2026-11-21"},
        {"Etc/GMT+12", "2026-11-21T11:59:59Z", "2026-11-20"},
        {"Etc/GMT-14", "2026-11-21T10:00:00Z", "2026-11-22"},
        // Clocks jump over midnight here, and show it twice there.
        {"Asia/Beirut", "2026-03-28T22:00:00Z", "2026-03-29"},
        {"America/Havana", "2026-11-01T04:30:00Z", "2026-11-01"},
    };
    for (const auto& [zone, now, today] : cases) {
        device(zone);
        world.clock->time = at(now);
        EXPECT_EQ(calendar::today().text(), today) << zone << " " << now;
    }
}

TEST_F(CalendarTest, MonthsAndYearsAreThoseOfTheDevicesCalendar) {
    struct Case {
        const char* locale;
        const char* first; ///< of the month of 21 November 2026
        std::size_t length;
        const char* later;   ///< 21 November 2026 two months on
        const char* newYear; ///< the first day of that year
    };
    const Case cases[] = {
        {"en_US", "2026-11-01", 30, "2027-01-21", "2026-01-01"},
        {"ne_NP", "2026-11-01", 30, "2027-01-21", "2026-01-01"},
        {"th_TH", "2026-11-01", 30, "2027-01-21", "2026-01-01"},
        {"fa_IR", "2026-10-23", 30, "2027-01-20", "2026-03-21"},
        {"ar_SA", "2026-11-11", 29, "2027-01-19", "2026-06-16"},
    };
    const Day date = day("2026-11-21");
    for (const auto& [locale, first, length, later, newYear] : cases) {
        device("Pacific/Auckland", locale);
        const auto days = calendar::daysOfMonth(date);
        EXPECT_EQ(days.front().text(), first) << locale;
        EXPECT_EQ(days.size(), length) << locale;
        EXPECT_EQ(calendar::addMonths(date, 2).text(), later) << locale;
        EXPECT_EQ(calendar::monthsBetween(date, day(later)), 2) << locale;
        EXPECT_EQ(calendar::monthsBetween(day(later), date), -2) << locale;
        const auto months = calendar::monthsOfYear(date);
        EXPECT_EQ(months.size(), 12U) << locale;
        EXPECT_EQ(months.front().text(), newYear) << locale;
        EXPECT_EQ(calendar::startOfYear(calendar::yearOf(date)).text(), newYear) << locale;
    }
}

TEST_F(CalendarTest, FormatsInTheDevicesLanguageDigitsAndWeek) {
    struct Case {
        const char* locale;
        const char* day;
        const char* pattern;
        const char* text;
    };
    const Case cases[] = {
        {"en_US", "2026-11-21", dayPattern::calendar, "Sat, Nov 21, 2026"},
        {"en_US", "2026-11-01", dayPattern::form, "Nov 1, 2026"},
        {"de_DE", "2026-10-21", dayPattern::calendar, "Mi., Okt. 21, 2026"},
        {"ne_NP", "2026-11-21", dayPattern::form, "नोभेम्बर २१, २०२६"},
        {"ar_EG", "2026-11-21", dayPattern::form, "نوفمبر ٢١, ٢٠٢٦"},
        {"th_TH", "2026-11-21", dayPattern::form, "พ.ย. 21, 2569"},
        {"fa_IR", "2026-11-21", dayPattern::form, "آبان ۳۰, ۱۴۰۵"},
    };
    for (const auto& [locale, day, pattern, text] : cases) {
        device("Asia/Kathmandu", locale);
        EXPECT_EQ(formatDay(Day::parse(day).value(), pattern), text) << locale << " " << day;
    }
}

TEST_F(CalendarTest, GroupsNumbersAsTheDeviceDoes) {
    const std::tuple<const char*, std::int64_t, const char*> cases[] = {
        {"en_US", 0, "0"},
        {"en_US", 88222, "88,222"},
        {"en_US", -1234567, "-1,234,567"},
        {"en_US", std::numeric_limits<std::int64_t>::max(), "9,223,372,036,854,775,807"},
        {"de_DE", 1234567, "1.234.567"},
        {"en_IN", 1234567, "12,34,567"},
        {"ne_NP", 1234567, "१२,३४,५६७"},
        {"ar_EG", 88222, "٨٨٬٢٢٢"},
    };
    for (const auto& [locale, number, text] : cases) {
        device("UTC", locale);
        EXPECT_EQ(formatNumber(number), text) << locale;
    }
}

} // namespace
} // namespace ombrivane
