#include "support/Calendar.h"

#include "support/Fault.h"
#include "support/IcuCalendar.h"

namespace ombrivane::calendar {
namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status)) fatalFault(std::string("the calendar fails: ") + u_errorName(status));
}

void toMidnight(icu::Calendar& calendar) {
    // Where clocks go back over midnight, the day begins with the first of the two.
    calendar.setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    for (const auto field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
        calendar.set(field, 0);
}

Date add(Date date, UCalendarDateFields field, int amount) {
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = calendarAt(date);
    calendar->add(field, amount, status);
    const UDate time = calendar->getTime(status);
    check(status);
    return dateOf(time);
}

int read(Date date, UCalendarDateFields field) {
    UErrorCode status = U_ZERO_ERROR;
    const int value = calendarAt(date)->get(field, status);
    check(status);
    return value;
}

} // namespace

Date addDays(Date date, int days) { return add(date, UCAL_DATE, days); }

Date addMonths(Date date, int months) { return add(date, UCAL_MONTH, months); }

Date addYears(Date date, int years) { return add(date, UCAL_YEAR, years); }

Date startOfDay(Date date) {
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = calendarAt(date);
    toMidnight(*calendar);
    const UDate time = calendar->getTime(status);
    check(status);
    return dateOf(time);
}

int weekday(Date date) { return read(date, UCAL_DAY_OF_WEEK); }

int dayOfMonth(Date date) { return read(date, UCAL_DATE); }

int monthsBetween(Date from, Date to) {
    constexpr int monthsOfYear = 12;
    return (read(to, UCAL_EXTENDED_YEAR) - read(from, UCAL_EXTENDED_YEAR)) * monthsOfYear +
           read(to, UCAL_MONTH) - read(from, UCAL_MONTH);
}

std::vector<Date> daysOfMonth(Date date) {
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = calendarAt(date);
    const int length = calendar->getActualMaximum(UCAL_DATE, status);
    calendar->set(UCAL_DATE, 1);
    toMidnight(*calendar);
    const Date first = dateOf(calendar->getTime(status));
    check(status);

    std::vector<Date> days;
    days.reserve(static_cast<std::size_t>(length));
    for (int day = 0; day < length; ++day)
        days.push_back(addDays(first, day));
    return days;
}

} // namespace ombrivane::calendar
