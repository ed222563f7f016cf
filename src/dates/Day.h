#pragma once

#include "keyed/Keyed.h"

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// A calendar day: year, month and day of the Gregorian calendar, without a time and without a time zone.
/// Every rule about days is computed here; what a customer reads of one is made by `formatDay`.
class Day {
public:
    /// The first of January 1970.
    constexpr Day() = default;
    constexpr explicit Day(std::chrono::sys_days days) : days_(days) {}

    /// Reads exactly "yyyy-MM-dd" in ASCII digits. Nothing for any other text and for a day that no month
    /// has.
    static std::optional<Day> parse(std::string_view text);

    /// "yyyy-MM-dd" in ASCII digits, whatever the device speaks: on the wire, in records, keys and scripts.
    std::string text() const;

    /// The day `days` later.
    Day plusDays(int days) const { return Day(days_ + std::chrono::days(days)); }
    /// The same day of a later month, or the last one of a month that lacks it.
    Day plusMonths(int months) const;
    /// The same day of a later year, or the last of February.
    Day plusYears(int years) const { return plusMonths(years * monthsOfYear); }

    /// 1 for Sunday to 7 for Saturday.
    int weekday() const { return static_cast<int>(std::chrono::weekday(days_).c_encoding()) + 1; }

    /// Midnight of UTC, for arithmetic with other types.
    constexpr std::chrono::sys_days days() const { return days_; }

    /// The same day.
    constexpr bool operator==(const Day&) const = default;
    /// The earlier one is less. By the count of days, as libc++ 14 orders no points of time.
    // NOLINTNEXTLINE(modernize-use-nullptr): the checker takes the zero of the comparison for a pointer
    constexpr auto operator<=>(const Day& other) const {
        return days_.time_since_epoch().count() <=> other.days_.time_since_epoch().count();
    }

private:
    static constexpr int monthsOfYear = 12;

    std::chrono::sys_days days_;
};

template <> struct Keyed<Day> {
    static Json toJson(Day value) { return value.text(); }
    static Day fromJson(const Json& json) {
        const auto day = json.is_string() ? Day::parse(json.get<std::string>()) : std::nullopt;
        if (!day) throw KeyedError("wants a day such as \"2026-11-21\"");
        return *day;
    }
};

} // namespace ombrivane
