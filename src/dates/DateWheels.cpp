#include "dates/DateWheels.h"

#include "dates/Calendar.h"
#include "dates/DateFormatter.h"

#include <algorithm>

namespace ombrivane {
namespace {

/// Where there is no latest day: farther than any date that documents carry.
constexpr int yearsAhead = 100;

DateWheels::Wheel wheel(const std::vector<Day>& days, const char* pattern, int index) {
    DateWheels::Wheel wheel;
    for (const Day day : days)
        wheel.entries.push_back(formatDay(day, pattern));
    wheel.index = index;
    return wheel;
}

/// The last of `days` that is not after `day`.
int indexOf(const std::vector<Day>& days, Day day) {
    return static_cast<int>(std::upper_bound(days.begin(), days.end(), day) - days.begin()) - 1;
}

Day entry(const std::vector<Day>& days, int index) {
    return days.at(static_cast<std::size_t>(std::clamp(index, 0, static_cast<int>(days.size()) - 1)));
}

} // namespace

DateWheels::DateWheels(Day earliest, std::optional<Day> latest) :
    earliest_(earliest),
    latest_(latest.value_or(earliest.plusYears(yearsAhead))),
    hasLatest_(latest.has_value()) {
    choose(std::nullopt);
}

void DateWheels::choose(std::optional<Day> day) {
    const int between = calendar::yearOf(latest_) - calendar::yearOf(earliest_);
    const Day wanted = day ? *day : hasLatest_ ? earliest_.plusYears(between / 2) : earliest_;
    day_ = std::max(earliest_, std::min(wanted, latest_));
}

DateWheels::Wheel DateWheels::years() const {
    std::vector<Day> years;
    for (int year = calendar::yearOf(earliest_); year <= calendar::yearOf(latest_); ++year)
        years.push_back(calendar::startOfYear(year));
    return wheel(years, dayPattern::year, indexOf(years, day_));
}

DateWheels::Wheel DateWheels::months() const {
    const auto months = calendar::monthsOfYear(day_);
    return wheel(months, dayPattern::shortMonth, indexOf(months, day_));
}

DateWheels::Wheel DateWheels::days() const {
    const auto days = calendar::daysOfMonth(day_);
    return wheel(days, dayPattern::dayOfMonth, indexOf(days, day_));
}

void DateWheels::turnYear(int index) {
    stand(calendar::monthsOfYear(calendar::startOfYear(calendar::yearOf(earliest_) + index)),
          months().index,
          days().index);
}

void DateWheels::turnMonth(int index) { stand(calendar::monthsOfYear(day_), index, days().index); }

void DateWheels::turnDay(int index) { stand(calendar::monthsOfYear(day_), months().index, index); }

void DateWheels::stand(const std::vector<Day>& months, int month, int day) {
    choose(entry(calendar::daysOfMonth(entry(months, month)), day));
}

} // namespace ombrivane
