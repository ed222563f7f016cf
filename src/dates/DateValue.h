#pragma once

#include "base/Uuid.h"
#include "dates/Day.h"
#include "keyed/Shown.h"

#include <string>
#include <vector>

namespace ombrivane {

/// One cell of a month grid.
struct DateValue {
    std::string id = Uuid::random().text();
    int day = -1;           ///< of the month; -1 for a filler before the first day
    Day date;               ///< for a filler simply today
    bool offsetDay = false; ///< a filler
};

/// The grid of the month that lies `months` after the month of `today`. It starts on a Sunday.
std::vector<DateValue> monthGrid(Day today, int months);

/// A cell as it is drawn.
struct CalendarCell {
    int day = -1;
    std::string date;  ///< "yyyy-MM-dd"; empty for a filler
    std::string label; ///< the day of the month in the device's digits; empty for a filler
    bool selectable = false;
    bool selected = false;
    bool inRange = false; ///< between departure and return

    bool operator==(const CalendarCell&) const = default;

    static constexpr auto shown =
        table(entry("day", &CalendarCell::day), entry("date", &CalendarCell::date),
              entry("label", &CalendarCell::label), entry("selectable", &CalendarCell::selectable),
              entry("selected", &CalendarCell::selected), entry("inRange", &CalendarCell::inRange));
};

} // namespace ombrivane
