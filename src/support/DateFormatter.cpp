#include "support/DateFormatter.h"

#include "platform/Platform.h"
#include "support/IcuCalendar.h"

#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <memory>

namespace ombrivane {
namespace {

std::unique_ptr<icu::SimpleDateFormat> formatter(const std::string& pattern, const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    auto made =
        std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern), locale, status);
    made->setTimeZone(*deviceTimeZone());
    return made;
}

} // namespace

std::string formatDate(Date date, const std::string& pattern) {
    icu::UnicodeString text;
    formatter(pattern, deviceLocale())->format(icuTime(date), text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::optional<Date> parseDate(const std::string& text, const std::string& pattern) {
    const auto reader = formatter(pattern, icu::Locale("en_US_POSIX"));
    reader->setLenient(false);
    const auto source = icu::UnicodeString::fromUTF8(text);
    icu::ParsePosition position;
    const UDate time = reader->parse(source, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != source.length()) return std::nullopt;
    return dateOf(inDeviceZone(time));
}

std::string formatNumber(std::int64_t number) {
    UErrorCode status = U_ZERO_ERROR;
    const auto text =
        icu::number::NumberFormatter::withLocale(deviceLocale()).formatInt(number, status).toString(status);
    std::string utf8;
    return text.toUTF8String(utf8);
}

} // namespace ombrivane
