// Days and times of the service and the forms in which it writes them.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

using Instant = std::chrono::sys_seconds;
using Day = std::chrono::sys_days;

/// A date and a time of day at a place, without its zone.
using LocalTime = std::chrono::local_time<std::chrono::minutes>;

/// "2026-03-01"; none for another form or a day that does not exist.
std::optional<Day> parseDay(std::string_view text);

/// "2026-03-01", "2026-03-01T09:30:00Z" or with an offset in place of the Z ("+05:45").
std::optional<Instant> parseInstant(std::string_view text);

/// "2026-03-01"
std::string dayText(Day day);

/// "2026-03-01T09:30:00Z"
std::string instantText(Instant time);

/// "2026-03-01" and "09:30" of a local time.
std::string dayText(LocalTime time);
std::string timeText(LocalTime time);

/// "2026-03-01T09:30:00.000+05:45"
std::string zonedText(LocalTime time, std::chrono::minutes utcOffset);

/// "Sun, Mar 1, 2026 09:30"
std::string longText(LocalTime time);

/// The same day of another year, the last of February where there is no 29th.
Day plusYears(Day day, int years);
Day plusMonths(Day day, int months);

} // namespace ombrivane::sandbox
