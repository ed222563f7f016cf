#include "dates/TravelCalendar.h"

#include "dates/CustomDateHelper.h"
#include "dates/DateFormatter.h"

namespace ombrivane {

void TravelCalendar::appear() { scrollToIndex = calendar::monthsBetween(calendar::today(), chosen().first); }

void TravelCalendar::tap(const std::string& day) {
    const auto date = Day::parse(day);
    if (!date) throw KeyedError("tapDay: wants a day such as \"2026-11-21\"");
    if (*date >= calendar::today()) choose(*date);
}

void TravelCalendar::finish() {
    fillEmptyFields();
    afterDone();
    dismiss();
}

TravelCalendar::Month::Month(TravelCalendar& calendar, int offset) :
    Screen("Month"), calendar_(calendar), offset_(offset) {}

std::vector<std::string> TravelCalendar::Month::labelDays() const {
    std::vector<std::string> labels;
    labels.reserve(grid_.size());
    for (const auto& value : grid_)
        labels.push_back(formatDay(value.date, dayPattern::dayOfMonth));
    return labels;
}

std::string TravelCalendar::Month::describe() const {
    const auto [month, year] =
        CustomDateHelper::monthWords(calendar::addMonths(calendar::today(), monthsAhead()));
    return month + " " + year;
}

std::vector<CalendarCell> TravelCalendar::Month::draw() const {
    const auto [first, last] = calendar_.chosen();
    const Day today = calendar::today();
    const auto& labels = labels_.get();
    std::vector<CalendarCell> drawn;
    drawn.reserve(grid_.size());
    for (std::size_t i = 0; i < grid_.size(); ++i) {
        const DateValue& value = grid_[i];
        CalendarCell cell;
        if (!value.offsetDay) {
            cell.day = value.day;
            cell.date = value.date.text();
            cell.label = labels[i];
            cell.selectable = value.date >= today;
            cell.selected = value.date == first || value.date == last;
            cell.inRange = value.date > first && value.date < last;
        }
        drawn.push_back(std::move(cell));
    }
    return drawn;
}

} // namespace ombrivane
