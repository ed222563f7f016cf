#include "dates/IcuCalendar.h"

#include "base/Fault.h"
#include "platform/Platform.h"
#include "words/Words.h"

#include <cmath>

namespace ombrivane {

icu::Locale shownLocale() { return icu::Locale::createCanonical(Words::shared().locale().c_str()); }

std::unique_ptr<icu::TimeZone> deviceTimeZone() {
    const auto zone = icu::UnicodeString::fromUTF8(platform().localization->timeZone());
    return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(zone));
}

std::unique_ptr<icu::Calendar> calendarAt(Day day) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), shownLocale(), status));
    if (U_FAILURE(status) || !calendar) fatalFault("the device's calendar cannot be made");
    calendar->setTime(icuTime(day.days()), status);
    return calendar;
}

UDate icuTime(Date date) { return static_cast<UDate>(date.time_since_epoch().count()); }

Date dateOf(UDate time) { return Date(std::chrono::milliseconds(std::llround(time))); }

} // namespace ombrivane
