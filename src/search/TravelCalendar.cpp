#include "search/TravelCalendar.h"

#include "platform/Platform.h"
#include "search/CustomDateHelper.h"
#include "support/Calendar.h"
#include "support/DateFormatter.h"

namespace ombrivane {

TravelCalendar::TravelCalendar(std::string_view name) : Screen(name) {
    currentDate = platform().clock->now();
}

void TravelCalendar::appear() {
    scrollToIndex = calendar::monthsBetween(platform().clock->now(), chosen().first);
}

void TravelCalendar::tap(const std::string& day) {
    const auto date = parseDate(day, datePattern::wire);
    if (!date) throw KeyedError("tapDay: wants a day such as \"2026-11-21\"");
    // Today is never past, late in the day as well.
    if (*date >= calendar::startOfDay(platform().clock->now())) choose(*date);
}

void TravelCalendar::finish() {
    fillEmptyFields();
    afterDone();
    dismiss();
}

TravelCalendar::Month::Month(TravelCalendar& calendar, int offset) :
    Screen("Month"),
    title(fields, "title",
          [&calendar, offset] {
              const auto [month, year] = CustomDateHelper::monthWords(
                  calendar::addMonths(platform().clock->now(), calendar.currentMonth.get() + offset));
              return month + " " + year;
          }),
    cells(fields, "cells",
          [this, &calendar] {
              const auto [first, last] = calendar.chosen();
              const Date start = calendar::startOfDay(first);
              const Date end = calendar::startOfDay(last);
              const Date today = calendar::startOfDay(platform().clock->now());
              std::vector<CalendarCell> drawn;
              drawn.reserve(grid_.size());
              for (std::size_t i = 0; i < grid_.size(); ++i) {
                  const DateValue& value = grid_[i];
                  CalendarCell cell;
                  if (!value.offsetDay) {
                      cell.day = value.day;
                      cell.date = days_[i];
                      cell.selectable = value.date >= today;
                      cell.selected = value.date == start || value.date == end;
                      cell.inRange = value.date > start && value.date < end;
                  }
                  drawn.push_back(std::move(cell));
              }
              return drawn;
          }),
    grid_(monthGrid(platform().clock->now(), calendar.currentMonth.get() + offset)) {
    days_.reserve(grid_.size());
    for (const auto& value : grid_)
        days_.push_back(formatDate(value.date, datePattern::wire));
}

} // namespace ombrivane
