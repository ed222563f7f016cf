#include "dates/Calendar.h"

#include "base/Fault.h"
#include "dates/IcuCalendar.h"
#include "platform/Platform.h"

namespace ombrivane::calendar {
namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status)) fatalFault(std::string("the calendar fails: ") + u_errorName(status));
}

int read(Day day, UCalendarDateFields field) {
    UErrorCode status = U_ZERO_ERROR;
    const int value = calendarAt(day)->get(field, status);
    check(status);
    return value;
}

Day dayAt(const icu::Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    const UDate time = calendar.getTime(status);
    check(status);
    return Day(std::chrono::floor<std::chrono::days>(dateOf(time)));
}

int daysInMonth(Day day) {
    UErrorCode status = U_ZERO_ERROR;
    const int length = calendarAt(day)->getActualMaximum(UCAL_DATE, status);
    check(status);
    return length;
}

} // namespace

Day dayOf(Date date) {
    std::int32_t raw = 0;
    std::int32_t saving = 0;
    UErrorCode status = U_ZERO_ERROR;
    deviceTimeZone()->getOffset(icuTime(date), false, raw, saving, status);
    check(status);
    return Day(std::chrono::floor<std::chrono::days>(date + std::chrono::milliseconds(raw + saving)));
}

Day today() { return dayOf(platform().clock->now()); }

Day addMonths(Day day, int months) {
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = calendarAt(day);
    calendar->add(UCAL_MONTH, months, status);
    check(status);
    return dayAt(*calendar);
}

int monthsBetween(Day from, Day to) {
    // Months are counted through: a year has not the same number of them in every calendar.
    int months = 0;
    const Day target = daysOfMonth(to).front();
    for (Day month = daysOfMonth(from).front(); month < target; month = addMonths(month, 1))
        ++months;
    for (Day month = daysOfMonth(from).front(); month > target; month = addMonths(month, -1))
        --months;
    return months;
}

std::vector<Day> daysOfMonth(Day day) {
    const Day first = day.plusDays(1 - read(day, UCAL_DATE));
    std::vector<Day> days;
    const int length = daysInMonth(first);
    days.reserve(static_cast<std::size_t>(length));
    for (int each = 0; each < length; ++each)
        days.push_back(first.plusDays(each));
    return days;
}

std::vector<Day> monthsOfYear(Day day) {
    const int year = yearOf(day);
    std::vector<Day> months;
    for (Day month = startOfYear(year); yearOf(month) == year; month = month.plusDays(daysInMonth(month)))
        months.push_back(month);
    return months;
}

int yearOf(Day day) { return read(day, UCAL_EXTENDED_YEAR); }

int weekYearOf(Day day) { return read(day, UCAL_YEAR_WOY); }

Day startOfYear(int year) {
    const auto calendar = calendarAt(Day());
    calendar->clear();
    calendar->set(UCAL_EXTENDED_YEAR, year);
    calendar->set(UCAL_MONTH, 0);
    calendar->set(UCAL_DATE, 1);
    return dayAt(*calendar);
}

} // namespace ombrivane::calendar
