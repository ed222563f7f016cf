#include "dates/DateWheels.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

Day dayOf(const char* text) { return Day::parse(text).value(); }

std::string ends(const DateWheels::Wheel& wheel) {
    return wheel.entries.front() + " to " + wheel.entries.back() + " at " +
           wheel.entries.at(static_cast<std::size_t>(wheel.index));
}

TEST(DateWheelsTest, OfferTheYearsMonthsAndDaysOfTheDevicesCalendar) {
    struct Case {
        const char* locale;
        const char* years;
        const char* months;
        const char* days;
    };
    const Case cases[] = {
        {"en_US", "1927 to 2026 at 1990", "Jan to Dec at May", "1 to 31 at 17"},
        {"ne_NP", "१९२७ to २०२६ at १९९०", "जनवरी to डिसेम्बर at मे", "१ to ३१ at १७"},
        {"th_TH", "2470 to 2569 at 2533", "ม.ค. to ธ.ค. at พ.ค.", "1 to 31 at 17"},
        {"fa_IR", "۱۳۰۵ to ۱۴۰۵ at ۱۳۶۹", "فروردین to اسفند at اردیبهشت", "۱ to ۳۱ at ۲۷"},
        {"ar_SA", "١٣٤٥ to ١٤٤٨ at ١٤١٠", "محرم to ذو الحجة at شوال", "١ to ٣٠ at ٢٢"},
    };
    fakes::World world;
    for (const auto& [locale, years, months, days] : cases) {
        world.localization->localeName = locale;
        DateWheels wheels(dayOf("1927-01-10"), dayOf("2026-11-21"));
        wheels.choose(dayOf("1990-05-17"));
        EXPECT_EQ(ends(wheels.years()), years) << locale;
        EXPECT_EQ(ends(wheels.months()), months) << locale;
        EXPECT_EQ(ends(wheels.days()), days) << locale;
    }
}

TEST(DateWheelsTest, EveryEntryOfEveryWheelCanBeTurnedToAndStaysWithinTheLimits) {
    fakes::World world;
    const Day earliest = dayOf("2019-01-10");
    const Day latest = dayOf("2026-11-21");
    for (const char* locale :
         {"en_US", "ne_NP", "ar_EG", "ar_SA", "fa_IR", "th_TH", "bn_BD", "he_IL@calendar=hebrew"}) {
        world.localization->localeName = locale;
        DateWheels wheels(earliest, latest);
        for (int year = 0; year < static_cast<int>(wheels.years().entries.size()); ++year) {
            wheels.turnYear(year);
            EXPECT_EQ(wheels.years().index, year) << locale;
            for (int month = 0; month < static_cast<int>(wheels.months().entries.size()); ++month) {
                wheels.turnDay(0);
                wheels.turnMonth(month);
                const Day turned = wheels.day();
                EXPECT_TRUE(turned == earliest || turned == latest || wheels.months().index == month)
                    << locale << " " << year << " " << month << " " << turned.text();
                EXPECT_TRUE(turned >= earliest && turned <= latest);
                wheels.turnDay(99);
                EXPECT_TRUE(wheels.day() == latest || wheels.day() == earliest ||
                            wheels.days().index + 1 == static_cast<int>(wheels.days().entries.size()));
            }
        }
    }
}

TEST(DateWheelsTest, ProposeTheMiddleOfTwoLimitsAndTheOnlyOne) {
    const fakes::World world;
    EXPECT_EQ(DateWheels(dayOf("1927-01-10"), dayOf("2026-11-21")).day().text(), "1976-01-10");
    DateWheels wheels(dayOf("2027-07-10"));
    EXPECT_EQ(wheels.day().text(), "2027-07-10");
    wheels.choose(dayOf("2099-12-31"));
    EXPECT_EQ(wheels.day().text(), "2099-12-31");
}

} // namespace
} // namespace ombrivane
