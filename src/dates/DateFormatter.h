#pragma once

#include "dates/Day.h"

#include <cstdint>
#include <string>

namespace ombrivane {

/// The patterns in which days are shown, in the syntax of ICU.
namespace dayPattern {
inline constexpr const char* calendar = "E, MMM d, yyyy"; ///< what a calendar writes, and dates of results
inline constexpr const char* form = "MMM d, yyyy";        ///< on the search forms and in date fields
inline constexpr const char* month = "MMMM";              ///< title of a calendar's month
inline constexpr const char* year = "yyyy";               ///< behind it, and on the wheels of a date field
inline constexpr const char* shortMonth = "LLL";          ///< on the wheels
inline constexpr const char* dayOfMonth = "d";            ///< there, and on the cells of a calendar
} // namespace dayPattern

/// A day as the customer reads it: in the language, calendar and digits of the device, or of the wallet's
/// choice, where the order of the fields is that of the region, too. Any thread.
std::string formatDay(Day day, const std::string& pattern);

/// A whole number in the decimal style of the same, with grouping: "88,222".
std::string formatNumber(std::int64_t number);

} // namespace ombrivane
