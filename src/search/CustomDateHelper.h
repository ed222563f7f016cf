#pragma once

#include "support/Date.h"

#include <string>
#include <utility>
#include <vector>

namespace ombrivane {

/// The date arithmetic that the calendars share, in the device's calendar and time zone.
class CustomDateHelper {
public:
    /// A text that is not of the pattern is a fault: the system never makes one.
    static Date parse(const std::string& text, const std::string& pattern);

    /// Month and year of the month title, for instance {"June", "2022"}. The year is the week-based one.
    static std::pair<std::string, std::string> monthWords(Date date);

    /// One date for each day of the month of `date`.
    static std::vector<Date> datesOfMonth(Date date);
};

} // namespace ombrivane
