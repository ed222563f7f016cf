#pragma once

#include "base/Date.h"
#include "dates/Day.h"

#include <string>
#include <vector>

/// What days are in the device's own calendar: what is shown, never what is decided or sent. A day that the
/// calendar cannot give is a fault.
namespace ombrivane::calendar {

/// The day that it is at `date` in the device's time zone.
Day dayOf(Date date);
/// The day that it is now where the device is.
Day today();

/// The same day of a later month, or the last one of a month that lacks it.
Day addMonths(Day day, int months);

/// The number of months from the month of `from` to that of `to`.
int monthsBetween(Day from, Day to);

/// The first day of the month of `day` and each later one of it, in order.
std::vector<Day> daysOfMonth(Day day);

/// The first day of each month of the year of `day`, in order.
std::vector<Day> monthsOfYear(Day day);

/// Counts years through, also where a calendar counts them within eras.
int yearOf(Day day);
/// The year that the week of `day` counts to, numbered alike.
int weekYearOf(Day day);
/// The first day of a year that `yearOf` counts.
Day startOfYear(int year);

} // namespace ombrivane::calendar
