#include "dates/CustomDateHelper.h"
#include "dates/CustomOneWayDatePickerView.h"
#include "dates/CustomRoundTripDatePickerView.h"
#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "search/MainView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ombrivane {
namespace {

class TravelCalendarTest : public testing::Test {
protected:
    static std::shared_ptr<TravelCalendar::Month> month(TravelCalendar& calendar, std::size_t index) {
        return std::static_pointer_cast<TravelCalendar::Month>(calendar.months.row(index));
    }
    /// The days of the first shown months for which `holds`, as "11/24".
    static std::string days(TravelCalendar& calendar, bool CalendarCell::*holds, std::size_t months = 2) {
        std::string list;
        for (std::size_t index = 0; index < months; ++index) {
            for (const auto& cell : month(calendar, index)->cells.get()) {
                if (cell.*holds) list += cell.date.substr(5) + " ";
            }
        }
        return list;
    }
    std::shared_ptr<CustomOneWayDatePickerView> oneWay() {
        return std::make_shared<CustomOneWayDatePickerView>(
            model.departureDateText, model.departureDate, [this] { ++called; });
    }
    std::shared_ptr<CustomRoundTripDatePickerView> roundTrip() {
        return std::make_shared<CustomRoundTripDatePickerView>(
            model.departureDateText, model.departureDate, model.returnDateText, model.returnDate, [this] {
                ++called;
            });
    }

    fakes::World world;
    MainViewModel& model = MainViewModel::shared();
    int called = 0;
};

TEST_F(TravelCalendarTest, AGridStartsOnSundayWithFillersBeforeTheFirst) {
    struct Case {
        const char* now;
        int months;
        std::size_t fillers;
        std::size_t days;
        const char* first;
    };
    const Case cases[] = {
        {"2026-11-21", 0, 0, 30, "2026-11-01"},
        {"2026-11-21", 1, 2, 31, "2026-12-01"},
        {"2026-11-21", 6, 6, 31, "2027-05-01"},
        {"2026-11-21", 13, 3, 31, "2027-12-01"},
        {"2026-11-21", 15, 2, 29, "2028-02-01"},
        {"2026-12-31", 2, 1, 28, "2027-02-01"},
        {"2026-08-31", 0, 6, 31, "2026-08-01"},
    };
    for (const auto& [now, months, fillers, count, first] : cases) {
        const auto grid = monthGrid(Day::parse(now).value(), months);
        ASSERT_EQ(grid.size(), fillers + count) << now << " +" << months;
        std::set<std::string> ids;
        for (std::size_t i = 0; i < grid.size(); ++i) {
            ids.insert(grid[i].id);
            EXPECT_EQ(grid[i].offsetDay, i < fillers);
            EXPECT_EQ(grid[i].day, i < fillers ? -1 : static_cast<int>(i - fillers) + 1);
            EXPECT_TRUE(i >= fillers || grid[i].date == Day::parse(now));
        }
        EXPECT_EQ(ids.size(), grid.size());
        EXPECT_EQ(grid[fillers].date.text(), first);
    }
}

TEST_F(TravelCalendarTest, TitlesRunAcrossTheYearAndFollowTheWeekBasedYear) {
    const auto calendar = oneWay();
    std::string titles;
    for (std::size_t index = 0; index < calendar->months.size(); ++index)
        titles += month(*calendar, index)->title.get() + "; ";
    EXPECT_EQ(titles, "November 2026; December 2026; January 2027; February 2027; March 2027; April 2027; ");
    // A week counts to the year that holds its first Saturday here, its Thursday there.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"en_US", "2026-12-26", "December 2026"},
        {"en_US", "2026-12-27", "December 2027"},
        {"en_US", "2027-01-01", "January 2027"},
        {"de_DE", "2026-12-31", "Dezember 2026"},
        {"de_DE", "2027-01-03", "Januar 2026"},
        {"de_DE", "2027-01-04", "Januar 2027"},
        {"th_TH", "2026-12-26", "ธันวาคม 2569"},
        {"th_TH", "2026-12-27", "ธันวาคม 2570"},
    };
    for (const auto& [locale, day, title] : cases) {
        world.localization->localeName = locale;
        const auto [name, year] = CustomDateHelper::monthWords(Day::parse(day).value());
        EXPECT_EQ(name + " " + year, title) << day;
    }
}

TEST_F(TravelCalendarTest, PastDaysDoNothingAndTodayIsFreeLateInTheDay) {
    world.clock->time = *parseIso("2026-11-21T23:59:00Z");
    const auto calendar = oneWay();
    EXPECT_EQ(days(*calendar, &CalendarCell::selectable, 1),
              "11-21 11-22 11-23 11-24 11-25 11-26 11-27 11-28 11-29 11-30 ");
    calendar->tapDay("2026-11-20");
    EXPECT_EQ(model.departureDateText.get(), "");
    EXPECT_EQ(called, 0);
    calendar->tapDay("2026-11-21");
    EXPECT_EQ(model.departureDateText.get(), "Sat, Nov 21, 2026");
    EXPECT_EQ(called, 1);
}

TEST_F(TravelCalendarTest, TheDaysAreThoseOfTheDevice) {
    world.localization->zone = "Asia/Kathmandu";
    world.clock->time = *parseIso("2026-11-21T18:30:00Z"); // 00:15 on the 22nd
    const auto calendar = oneWay();
    EXPECT_EQ(days(*calendar, &CalendarCell::selectable, 1).substr(0, 6), "11-22 ");
    calendar->tapDay("2026-11-24");
    EXPECT_EQ(model.departureDate->text(), "2026-11-24");
    EXPECT_EQ(days(*calendar, &CalendarCell::selected), "11-24 ");
}

TEST_F(TravelCalendarTest, CellsTitlesAndTextsShowOneCalendarAndKeepTheDayThatIsMeant) {
    struct Case {
        const char* locale;
        const char* title;      ///< of the first month
        const char* firstLabel; ///< of its first day
        const char* chosen;     ///< what is shown of 10 December 2026
    };
    const Case cases[] = {
        {"ne_NP", "नोभेम्बर २०२६", "१", "बिहि, डिसेम्बर १०, २०२६"},
        {"ar_EG", "نوفمبر ٢٠٢٦", "١", "الخميس, ديسمبر ١٠, ٢٠٢٦"},
        {"th_TH", "พฤศจิกายน 2569", "1", "พฤ., ธ.ค. 10, 2569"},
        {"fa_IR", "آبان ۱۴۰۵", "۱", "پنجشنبه, آذر ۱۹, ۱۴۰۵"},
        {"bn_BD", "নভেম্বর ২০২৬", "১", "বৃহস্পতি, ডিসে ১০, ২০২৬"},
    };
    for (const auto& [locale, title, firstLabel, chosen] : cases) {
        world.localization->localeName = locale;
        const auto calendar = oneWay();
        EXPECT_EQ(month(*calendar, 0)->title.get(), title);
        const auto cells = month(*calendar, 0)->cells.get();
        const auto first =
            std::find_if(cells.begin(), cells.end(), [](const auto& cell) { return cell.day == 1; });
        ASSERT_NE(first, cells.end());
        EXPECT_EQ(first->label, firstLabel) << locale;
        calendar->tapDay("2026-12-10");
        EXPECT_EQ(model.departureDate->text(), "2026-12-10") << locale;
        EXPECT_EQ(model.departureDateText.get(), chosen) << locale;
        EXPECT_EQ(days(*calendar, &CalendarCell::selected), "12-10 ") << locale;
    }
}

TEST_F(TravelCalendarTest, OneWayTapsMoveTheDepartureAndDoneAcceptsWhatStands) {
    const auto calendar = oneWay();
    EXPECT_EQ(calendar->chosenText.get(), "Sat, Nov 21, 2026");
    calendar->done();
    EXPECT_EQ(model.departureDateText.get(), "Sat, Nov 21, 2026") << "Done without a tap";
    EXPECT_EQ(called, 0);
    calendar->tapDay("2026-12-01");
    calendar->tapDay("2026-12-03");
    EXPECT_EQ(called, 2) << "every tap";
    EXPECT_EQ(model.departureDate->text(), "2026-12-03");
    EXPECT_EQ(days(*calendar, &CalendarCell::selected), "12-03 ");
    model.departureDateText = "kept";
    calendar->done();
    EXPECT_EQ(model.departureDateText.get(), "kept");
}

TEST_F(TravelCalendarTest, RoundTripTapsRunDepartureReturnDepartureReturn) {
    struct Tap {
        const char* day;
        const char* departure;
        const char* returning;
        const char* range;
        bool returnSelected;
    };
    const Tap taps[] = {
        {"2026-11-20", "", "", "11-22 11-23 ", false}, // past
        {"2026-11-29", "Sun, Nov 29, 2026", "Wed, Dec 2, 2026", "11-30 12-01 ", false},
        {"2026-11-25", "Sun, Nov 29, 2026", "Wed, Nov 25, 2026", "", true}, // before the departure
        {"2026-12-05", "Sat, Dec 5, 2026", "Tue, Dec 8, 2026", "12-06 12-07 ", false},
        {"2026-12-07", "Sat, Dec 5, 2026", "Mon, Dec 7, 2026", "12-06 ", true},
        {"2026-12-07", "Mon, Dec 7, 2026", "Thu, Dec 10, 2026", "12-08 12-09 ", false},
    };
    const auto calendar = roundTrip();
    for (const auto& [day, departure, returning, range, returnSelected] : taps) {
        calendar->tapDay(day);
        EXPECT_EQ(model.departureDateText.get(), departure) << day;
        EXPECT_EQ(model.returnDateText.get(), returning) << day;
        EXPECT_EQ(days(*calendar, &CalendarCell::inRange), range) << day;
        EXPECT_EQ(calendar->returnDateSelected.get(), returnSelected) << day;
    }
    EXPECT_EQ(days(*calendar, &CalendarCell::selected), "12-07 12-10 ");
    EXPECT_EQ(called, 0);
}

TEST_F(TravelCalendarTest, DoneFillsWhatIsEmptyOfARoundTripAndCallsBack) {
    const auto calendar = roundTrip();
    model.returnDateText = "kept";
    calendar->done();
    EXPECT_EQ(model.departureDateText.get() + " " + model.returnDateText.get(), "Sat, Nov 21, 2026 kept");
    EXPECT_EQ(called, 1);
    model.returnDateText = "";
    calendar->close();
    EXPECT_EQ(model.returnDateText.get(), "") << "close is no Done";
    EXPECT_EQ(called, 1);
}

TEST_F(TravelCalendarTest, AppearsAtTheMonthOfTheDateThatStands) {
    model.departureDate = Day::parse("2027-02-01").value();
    const auto calendar = roundTrip();
    Navigator navigator(calendar);
    navigator.start();
    EXPECT_EQ(calendar->scrollToIndex.get(), 3);
}

TEST_F(TravelCalendarTest, AMonthThatAViewStillHoldsOutlivesItsCalendar) {
    const auto first = month(*oneWay(), 0);
    int told = 0;
    const auto watch = first->cells.observe([&told] { ++told; });
    model.departureDate = Day::parse("2026-11-24").value();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(first->cells.get().size(), 30U);
}

} // namespace
} // namespace ombrivane
