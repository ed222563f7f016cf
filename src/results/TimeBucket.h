#pragma once

#include "words/Text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// A choice of the filter's departure time. The hours overlap at their edges by design: a departure at 06:40
/// is both early morning and morning.
struct TimeBucket {
    const char* key;
    Text title;
    const char* label;
    const char* icon;
    std::int64_t firstHour;
    std::int64_t lastHour; ///< included
};

inline constexpr std::array<TimeBucket, 4> timeBuckets{{
    {"earlyMorning", Text::timeEarlyMorning, "00:00 - 06:00", "sunriseIcon", 0, 6},
    {"morning", Text::timeMorning, "06:00 - 12:00", "sunIcon", 6, 12},
    {"afternoon", Text::timeAfternoon, "12:00 - 18:00", "sunsetIcon", 12, 18},
    {"evening", Text::timeEvening, "18:00 - 00:00", "starIcon", 18, INT64_MAX},
}};

/// The bucket with `key`, or nullptr.
const TimeBucket* timeBucket(const std::string& key);

/// The whole number before the first ":" of a departure time, 0 where another text stands, and no hour where
/// none does.
std::optional<std::int64_t> departureHour(const std::string& time);

} // namespace ombrivane
