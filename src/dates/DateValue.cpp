#include "dates/DateValue.h"

#include "dates/Calendar.h"
#include "dates/CustomDateHelper.h"

namespace ombrivane {

std::vector<DateValue> monthGrid(Day today, int months) {
    const auto days = CustomDateHelper::datesOfMonth(calendar::addMonths(today, months));
    const int fillers = (days.empty() ? today : days.front()).weekday() - 1;
    std::vector<DateValue> grid(static_cast<std::size_t>(fillers));
    for (auto& filler : grid) {
        filler.date = today;
        filler.offsetDay = true;
    }
    int count = 0;
    for (const Day day : days) {
        DateValue& cell = grid.emplace_back();
        cell.day = ++count;
        cell.date = day;
    }
    return grid;
}

} // namespace ombrivane
