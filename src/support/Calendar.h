#pragma once

#include "support/Date.h"

#include <vector>

/// Arithmetic in the device's own calendar and time zone. A date that the calendar cannot give is a fault.
namespace ombrivane::calendar {

Date addDays(Date date, int days);
Date addMonths(Date date, int months);
Date addYears(Date date, int years);

/// The first moment of the day of `date`.
Date startOfDay(Date date);

/// 1 for Sunday to 7 for Saturday.
int weekday(Date date);
int dayOfMonth(Date date);

/// The number of months from the month of `from` to that of `to`.
int monthsBetween(Date from, Date to);

/// The first day of the month of `date` at its first moment, and each later day of it, in order.
std::vector<Date> daysOfMonth(Date date);

} // namespace ombrivane::calendar
