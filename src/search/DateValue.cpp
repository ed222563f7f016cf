#include "search/DateValue.h"

#include "search/CustomDateHelper.h"
#include "support/Calendar.h"

namespace ombrivane {

std::vector<DateValue> monthGrid(Date now, int months) {
    const auto dates = CustomDateHelper::datesOfMonth(calendar::addMonths(now, months));
    const int fillers = calendar::weekday(dates.empty() ? now : dates.front()) - 1;
    std::vector<DateValue> grid(static_cast<std::size_t>(fillers));
    for (auto& filler : grid) {
        filler.date = now;
        filler.offsetDay = true;
    }
    int day = 0;
    for (const Date date : dates) {
        DateValue& cell = grid.emplace_back();
        cell.day = ++day;
        cell.date = date;
    }
    return grid;
}

} // namespace ombrivane
