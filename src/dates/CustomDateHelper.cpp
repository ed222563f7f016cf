#include "dates/CustomDateHelper.h"

#include "dates/Calendar.h"
#include "dates/DateFormatter.h"

namespace ombrivane {

std::pair<std::string, std::string> CustomDateHelper::monthWords(Day day) {
    // "MMMM YYYY", but that ICU writes the year of a week as a Gregorian one in calendars that count from
    // elsewhere.
    const Day weekYear = calendar::startOfYear(calendar::weekYearOf(day));
    return {formatDay(day, dayPattern::month), formatDay(weekYear, dayPattern::year)};
}

std::vector<Day> CustomDateHelper::datesOfMonth(Day day) { return calendar::daysOfMonth(day); }

} // namespace ombrivane
