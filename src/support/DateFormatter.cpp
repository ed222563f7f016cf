#include "support/DateFormatter.h"

#include "platform/Platform.h"
#include "support/IcuCalendar.h"

#include <unicode/basictz.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <map>
#include <memory>

namespace ombrivane {
namespace {

/// Making a formatter costs far more than its use, and a calendar or a list of results formats by the
/// hundred: each thread keeps those that it has made.
icu::SimpleDateFormat& formatter(const std::string& pattern, const std::string& locale,
                                 const std::string& zone) {
    constexpr std::size_t most = 32; // more than a device needs that changes its locale and zone now and then
    thread_local std::map<std::array<std::string, 3>, std::unique_ptr<icu::SimpleDateFormat>> made;
    const std::array<std::string, 3> key{pattern, locale, zone};
    if (const auto found = made.find(key); found != made.end()) return *found->second;
    if (made.size() >= most) made.clear();
    UErrorCode status = U_ZERO_ERROR;
    auto fresh = std::make_unique<icu::SimpleDateFormat>(
        icu::UnicodeString::fromUTF8(pattern), icu::Locale::createCanonical(locale.c_str()), status);
    fresh->adoptTimeZone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zone)));
    return *made.emplace(key, std::move(fresh)).first->second;
}

/// When clocks of the device's zone show what clocks of UTC show at `wall`. A midnight that they leave out
/// is the moment at which they jump, one that they show twice is the first.
UDate inDeviceZone(UDate wall) {
    const auto zone = deviceTimeZone();
    const auto* rules = dynamic_cast<const icu::BasicTimeZone*>(zone.get());
    if (rules == nullptr) return wall - zone->getRawOffset();
    std::int32_t raw = 0;
    std::int32_t saving = 0;
    UErrorCode status = U_ZERO_ERROR;
    rules->getOffsetFromLocal(wall, UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, saving, status);
    return wall - raw - saving;
}

} // namespace

std::string formatDate(Date date, const std::string& pattern) {
    icu::UnicodeString text;
    auto& localization = *platform().localization;
    formatter(pattern, localization.locale(), localization.timeZone()).format(icuTime(date), text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::optional<Date> parseDate(const std::string& text, const std::string& pattern) {
    // Read strictly as UTC, which has every midnight: a strict reader refuses a day whose own zone skips it.
    auto& reader = formatter(pattern, "en_US_POSIX", "GMT");
    reader.setLenient(false);
    const auto source = icu::UnicodeString::fromUTF8(text);
    icu::ParsePosition position;
    const UDate time = reader.parse(source, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != source.length()) return std::nullopt;
    return dateOf(inDeviceZone(time));
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
