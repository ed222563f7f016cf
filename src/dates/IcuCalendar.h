#pragma once

#include "base/Date.h"
#include "dates/Day.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>

/// ICU's types for the locale in which dates are shown and for the device's time zone. Included where dates
/// are computed and nowhere else.
namespace ombrivane {

icu::Locale shownLocale();
std::unique_ptr<icu::TimeZone> deviceTimeZone();

/// The device's own calendar, set to midnight of `day`. A day has no time zone, so the calendar's is UTC.
std::unique_ptr<icu::Calendar> calendarAt(Day day);

UDate icuTime(Date date);
Date dateOf(UDate time);

} // namespace ombrivane
