#include "dates/DateFormatter.h"

#include "dates/IcuCalendar.h"
#include "words/Words.h"

#include <unicode/dtptngen.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <map>
#include <memory>

namespace ombrivane {
namespace {

/// Making a formatter costs far more than its use, and a calendar or a list of results formats by the
/// hundred: each thread keeps those that it has made.
///
/// @param ordered whether the fields stand in the order of the locale, and not in that of the pattern
icu::SimpleDateFormat& formatter(const std::string& pattern, const std::string& locale, bool ordered) {
    constexpr std::size_t most = 32; // more than a device needs that changes its locale now and then
    thread_local std::map<std::array<std::string, 2>, std::unique_ptr<icu::SimpleDateFormat>> made;
    const std::array<std::string, 2> key{ordered ? pattern + "!" : pattern, locale};
    if (const auto found = made.find(key); found != made.end()) return *found->second;
    if (made.size() >= most) made.clear();
    UErrorCode status = U_ZERO_ERROR;
    const auto where = icu::Locale::createCanonical(locale.c_str());
    auto fields = icu::UnicodeString::fromUTF8(pattern);
    if (ordered) {
        const std::unique_ptr<icu::DateTimePatternGenerator> generator(
            icu::DateTimePatternGenerator::createInstance(where, status));
        const auto skeleton = icu::DateTimePatternGenerator::staticGetSkeleton(fields, status);
        fields = generator->getBestPattern(skeleton, status);
    }
    auto fresh = std::make_unique<icu::SimpleDateFormat>(fields, where, status);
    fresh->setTimeZone(*icu::TimeZone::getGMT()); // a day has no time zone
    return *made.emplace(key, std::move(fresh)).first->second;
}

} // namespace

std::string formatDay(Day day, const std::string& pattern) {
    const auto& words = Words::shared();
    icu::UnicodeString text;
    formatter(pattern, words.locale(), words.isChosen()).format(icuTime(day.days()), text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::string formatNumber(std::int64_t number) {
    thread_local std::optional<std::string> made; // the locale of the formatter that this thread keeps
    thread_local icu::number::LocalizedNumberFormatter formatter;
    if (const std::string locale = Words::shared().locale(); made != locale) {
        formatter = icu::number::NumberFormatter::withLocale(shownLocale());
        made = locale;
    }
    UErrorCode status = U_ZERO_ERROR;
    std::string utf8;
    return formatter.formatInt(number, status).toString(status).toUTF8String(utf8);
}

} // namespace ombrivane
