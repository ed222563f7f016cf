#pragma once

#include "support/Date.h"

#include <optional>
#include <string>

namespace ombrivane {

/// The date patterns of the system, in the syntax of ICU. There are no others.
namespace datePattern {
inline constexpr const char* calendar = "E, MMM d, yyyy"; ///< what a calendar writes, and dates of results
inline constexpr const char* form = "MMM d, yyyy";        ///< on the search forms and in date fields
inline constexpr const char* wire = "yyyy-MM-dd";         ///< sent to the service
inline constexpr const char* month = "MMMM YYYY";         ///< month title; the year is the week-based one
} // namespace datePattern

/// Formats in the device's locale and time zone. Any thread.
std::string formatDate(Date date, const std::string& pattern);

/// Reads `text` in the locale "en_US_POSIX" and the device's time zone. Nothing when it is not of the
/// pattern.
std::optional<Date> parseDate(const std::string& text, const std::string& pattern);

/// A whole number in the device's decimal style, with grouping: "88,222".
std::string formatNumber(std::int64_t number);

} // namespace ombrivane
