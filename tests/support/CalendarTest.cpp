#include "support/Calendar.h"

#include "fakes/World.h"
#include "support/DateFormatter.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

Date at(const char* text) { return parseIso(text).value(); }

/// A device somewhere.
class CalendarTest : public testing::Test {
protected:
    void device(const std::string& zone, const std::string& locale = "en_US") {
        world.localization->zone = zone;
        world.localization->localeName = locale;
    }
    static std::string wire(Date date) { return formatDate(date, datePattern::wire); }

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

TEST_F(CalendarTest, HalfPastMidnightInKathmanduIsADayAheadOfUtc) {
    device("Asia/Kathmandu");
    const Date date = at("2026-11-21T00:30:00+05:45");
    EXPECT_EQ(wire(date), "2026-11-21");
    EXPECT_EQ(calendar::startOfDay(date), at("2026-11-21T00:00:00+05:45"));
    EXPECT_EQ(calendar::weekday(date), 7);
    EXPECT_EQ(calendar::dayOfMonth(date), 21);
    EXPECT_EQ(parseDate("2026-11-21", datePattern::wire), at("2026-11-21T00:00:00+05:45"));
    EXPECT_EQ(calendar::monthsBetween(date, at("2027-01-01T00:30:00+05:45")), 2);
    device("UTC");
    EXPECT_EQ(wire(date), "2026-11-20");
    EXPECT_EQ(calendar::monthsBetween(date, at("2027-01-01T00:30:00+05:45")), 1);
}

TEST_F(CalendarTest, ADayHasAsManyHoursAsItsZoneGivesIt) {
    struct Case {
        const char* zone;
        const char* noon;
        std::chrono::hours length;
        const char* start;
    };
    const Case cases[] = {
        {"America/New_York", "2026-03-08T12:00:00-04:00", 23h, "2026-03-08T05:00:00Z"},
        {"America/New_York", "2026-11-01T12:00:00-05:00", 25h, "2026-11-01T04:00:00Z"},
        // Clocks here jump over midnight itself, and there they show it twice.
        {"Asia/Beirut", "2026-03-29T12:00:00+03:00", 23h, "2026-03-28T22:00:00Z"},
        {"America/Havana", "2026-11-01T12:00:00-05:00", 25h, "2026-11-01T04:00:00Z"},
    };
    for (const auto& [zone, noonText, length, start] : cases) {
        SCOPED_TRACE(std::string(zone) + " " + noonText);
        device(zone);
        const Date noon = at(noonText);
        EXPECT_EQ(isoText(calendar::startOfDay(noon)), start);
        EXPECT_EQ(calendar::startOfDay(calendar::addDays(noon, 1)) - calendar::startOfDay(noon), length);
        EXPECT_EQ(calendar::startOfDay(calendar::startOfDay(noon)), calendar::startOfDay(noon));
        // Noon stays noon, whatever the clocks did in the night.
        EXPECT_EQ(formatDate(calendar::addDays(noon, -1), "yyyy-MM-dd HH"), wire(noon - 24h) + " 12");
        EXPECT_EQ(parseDate(wire(noon), datePattern::wire), calendar::startOfDay(noon));

        const auto days = calendar::daysOfMonth(noon);
        for (std::size_t i = 0; i < days.size(); ++i)
            EXPECT_EQ(calendar::dayOfMonth(days[i]), static_cast<int>(i) + 1);
        EXPECT_EQ(wire(days.back()).substr(0, 7), wire(noon).substr(0, 7));
    }
}

TEST_F(CalendarTest, MonthsAreOfTheCalendarAndNeverSkipOne) {
    device("Asia/Kathmandu");
    EXPECT_EQ(wire(calendar::addMonths(at("2026-01-31T06:00:00Z"), 1)), "2026-02-28");
    EXPECT_EQ(wire(calendar::addMonths(at("2026-11-21T06:00:00Z"), 13)), "2027-12-21");
    EXPECT_EQ(wire(calendar::addYears(at("2028-02-29T06:00:00Z"), -12)), "2016-02-29");
    EXPECT_EQ(wire(calendar::addYears(at("2028-02-29T06:00:00Z"), -2)), "2026-02-28");
    EXPECT_EQ(calendar::monthsBetween(at("2026-11-30T06:00:00Z"), at("2027-12-01T06:00:00Z")), 13);

    for (const auto& [month, length] :
         {std::pair("2028-02-29T20:00:00Z", 31U), std::pair("2028-02-28T20:00:00Z", 29U)}) {
        EXPECT_EQ(calendar::daysOfMonth(at(month)).size(), length) << month;
    }
    EXPECT_EQ(calendar::daysOfMonth(at("2028-02-29T20:00:00Z")).front(), at("2028-03-01T00:00:00+05:45"));
}

TEST_F(CalendarTest, FormatsInTheDevicesLanguageDigitsAndWeek) {
    struct Case {
        const char* locale;
        const char* day;
        const char* pattern;
        const char* text;
    };
    const Case cases[] = {
        {"en_US", "2026-11-21", datePattern::calendar, "Sat, Nov 21, 2026"},
        {"en_US", "2026-11-01", datePattern::form, "Nov 1, 2026"},
        {"en_US", "2026-03-08", datePattern::wire, "2026-03-08"},
        {"de_DE", "2026-10-21", datePattern::calendar, "Mi., Okt. 21, 2026"},
        {"ne_NP", "2026-11-21", datePattern::form, "नोभेम्बर २१, २०२६"},
        {"ar_EG", "2026-11-21", datePattern::form, "نوفمبر ٢١, ٢٠٢٦"},
        // The year of the month title is the week's: a week counts to the year that holds its first Saturday
        // here, its Thursday there.
        {"en_US", "2026-11-21", datePattern::month, "November 2026"},
        {"en_US", "2026-12-26", datePattern::month, "December 2026"},
        {"en_US", "2026-12-27", datePattern::month, "December 2027"},
        {"en_US", "2027-01-01", datePattern::month, "January 2027"},
        {"de_DE", "2026-12-31", datePattern::month, "Dezember 2026"},
        {"de_DE", "2027-01-03", datePattern::month, "Januar 2026"},
        {"de_DE", "2027-01-04", datePattern::month, "Januar 2027"},
    };
    for (const auto& [locale, day, pattern, text] : cases) {
        device("Asia/Kathmandu", locale);
        EXPECT_EQ(formatDate(at(day) + 6h, pattern), text) << locale << " " << day;
    }
}

TEST_F(CalendarTest, ReadsPlainDatesWhateverTheDeviceSpeaksAndRefusesTheRest) {
    for (const char* locale : {"en_US", "ne_NP", "ar_EG", "th_TH", "fa_IR"}) {
        device("Asia/Kathmandu", locale);
        EXPECT_EQ(parseDate("2026-11-21", datePattern::wire), at("2026-11-20T18:15:00Z")) << locale;
        EXPECT_EQ(parseDate("Sat, Nov 21, 2026", datePattern::calendar), at("2026-11-20T18:15:00Z"))
            << locale;
    }
    for (const char* text : {"", "2026-02-30", "2026-13-01", "2026-11-21T", "21 Nov 2026", "2026-11"}) {
        EXPECT_FALSE(parseDate(text, datePattern::wire)) << text;
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
