#include "sandbox/world/Dates.h"

#include <fmt/format.h>

#include <array>
#include <charconv>

namespace ombrivane::sandbox {

namespace {

using namespace std::chrono;

/// The number of exactly `width` digits at `position`.
std::optional<int> digits(std::string_view text, std::size_t position, std::size_t width) {
    if (position + width > text.size()) return std::nullopt;
    int value = 0;
    for (char digit : text.substr(position, width)) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    return value;
}

/// "09:30" at `position`, in minutes.
std::optional<minutes> clockTime(std::string_view text, std::size_t position) {
    const auto hour = digits(text, position, 2);
    const auto minute = digits(text, position + 3, 2);
    if (!hour || !minute || text[position + 2] != ':' || *hour > 23 || *minute > 59) return std::nullopt;
    return hours(*hour) + minutes(*minute);
}

/// "Z" or "+05:45".
std::optional<minutes> zoneOffset(std::string_view text) {
    if (text == "Z") return minutes(0);
    if (text.size() != 6 || (text[0] != '+' && text[0] != '-')) return std::nullopt;
    const auto offset = clockTime(text, 1);
    if (!offset) return std::nullopt;
    return text[0] == '-' ? -*offset : *offset;
}

Day lastValid(year_month_day date) { return date.ok() ? Day(date) : Day(date.year() / date.month() / last); }

Day dayOf(LocalTime time) { return Day(floor<days>(time).time_since_epoch()); }

} // namespace

std::optional<Day> parseDay(std::string_view text) {
    const auto y = digits(text, 0, 4);
    const auto m = digits(text, 5, 2);
    const auto d = digits(text, 8, 2);
    if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !y || !m || !d) return std::nullopt;
    const year_month_day date(year(*y), month(static_cast<unsigned>(*m)), day(static_cast<unsigned>(*d)));
    return date.ok() ? std::optional(Day(date)) : std::nullopt;
}

std::optional<Instant> parseInstant(std::string_view text) {
    const auto date = parseDay(text.substr(0, 10));
    if (!date || text.size() == 10) return date;
    const auto time = clockTime(text, 11);
    const auto second = digits(text, 17, 2);
    if (text[10] != 'T' || !time || !second || *second > 59 || text[16] != ':') return std::nullopt;
    const auto offset = zoneOffset(text.substr(19));
    if (!offset) return std::nullopt;
    return *date + *time + seconds(*second) - *offset;
}

std::string dayText(Day date) {
    const year_month_day parts(date);
    return fmt::format("{:04}-{:02}-{:02}",
                       static_cast<int>(parts.year()),
                       static_cast<unsigned>(parts.month()),
                       static_cast<unsigned>(parts.day()));
}

std::string instantText(Instant time) {
    const Day date = floor<days>(time);
    const hh_mm_ss clock(time - date);
    return fmt::format("{}T{:02}:{:02}:{:02}Z",
                       dayText(date),
                       clock.hours().count(),
                       clock.minutes().count(),
                       clock.seconds().count());
}

std::string dayText(LocalTime time) { return dayText(dayOf(time)); }

std::string timeText(LocalTime time) {
    const auto ofDay = time - floor<days>(time);
    return fmt::format("{:02}:{:02}", ofDay.count() / 60, ofDay.count() % 60);
}

std::string zonedText(LocalTime time, minutes utcOffset) {
    const long offset = std::abs(utcOffset.count());
    return fmt::format("{}T{}:00.000{}{:02}:{:02}",
                       dayText(time),
                       timeText(time),
                       utcOffset.count() < 0 ? '-' : '+',
                       offset / 60,
                       offset % 60);
}

std::string longText(LocalTime time) {
    constexpr std::array<std::string_view, 7> weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array<std::string_view, 12> months{
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const Day date = dayOf(time);
    const year_month_day parts(date);
    return fmt::format("{}, {} {}, {} {}",
                       weekdays[weekday(date).c_encoding()],
                       months[static_cast<unsigned>(parts.month()) - 1],
                       static_cast<unsigned>(parts.day()),
                       static_cast<int>(parts.year()),
                       timeText(time));
}

Day plusYears(Day day, int count) { return lastValid(year_month_day(day) + years(count)); }

Day plusMonths(Day day, int count) { return lastValid(year_month_day(day) + months(count)); }

} // namespace ombrivane::sandbox
