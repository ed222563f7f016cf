#include "dates/DateFormatter.h"

#include "dates/IcuCalendar.h"
#include "platform/Platform.h"

#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <map>
#include <memory>

namespace ombrivane {
namespace {

/// Making a formatter costs far more than its use, and a calendar or a list of results formats by the
/// hundred: each thread keeps those that it has made.
icu::SimpleDateFormat& formatter(const std::string& pattern, const std::string& locale) {
    constexpr std::size_t most = 32; // more than a device needs that changes its locale now and then
    thread_local std::map<std::array<std::string, 2>, std::unique_ptr<icu::SimpleDateFormat>> made;
    const std::array<std::string, 2> key{pattern, locale};
    if (const auto found = made.find(key); found != made.end()) return *found->second;
    if (made.size() >= most) made.clear();
    UErrorCode status = U_ZERO_ERROR;
    auto fresh = std::make_unique<icu::SimpleDateFormat>(
        icu::UnicodeString::fromUTF8(pattern), icu::Locale::createCanonical(locale.c_str()), status);
    fresh->setTimeZone(*icu::TimeZone::getGMT()); // a day has no time zone
    return *made.emplace(key, std::move(fresh)).first->second;
}

} // namespace

std::string formatDay(Day day, const std::string& pattern) {
    icu::UnicodeString text;
    formatter(pattern, platform().localization->locale()).format(icuTime(day.days()), text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::string formatNumber(std::int64_t number) {
    thread_local std::optional<std::string> made; // the locale of the formatter that this thread keeps
    thread_local icu::number::LocalizedNumberFormatter formatter;
    if (const std::string locale = platform().localization->locale(); made != locale) {
        formatter = icu::number::NumberFormatter::withLocale(deviceLocale());
        made = locale;
    }
    UErrorCode status = U_ZERO_ERROR;
    std::string utf8;
    return formatter.formatInt(number, status).toString(status).toUTF8String(utf8);
}

} // namespace ombrivane
