#pragma once

#include "dates/Day.h"

#include <string>
#include <utility>
#include <vector>

namespace ombrivane {

/// The date arithmetic that the calendars share, in the device's calendar.
class CustomDateHelper {
public:
    /// Month and year of the month title, for instance {"June", "2022"}. The year is the week-based one.
    static std::pair<std::string, std::string> monthWords(Day day);

    /// One day for each day of the month of `day`.
    static std::vector<Day> datesOfMonth(Day day);
};

} // namespace ombrivane
