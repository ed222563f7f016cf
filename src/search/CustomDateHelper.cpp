#include "search/CustomDateHelper.h"

#include "support/Calendar.h"
#include "support/DateFormatter.h"
#include "support/Fault.h"

namespace ombrivane {

Date CustomDateHelper::parse(const std::string& text, const std::string& pattern) {
    const auto date = parseDate(text, pattern);
    if (!date) fatalFault("the date \"" + text + "\" is not of the pattern " + pattern);
    return *date;
}

std::pair<std::string, std::string> CustomDateHelper::monthWords(Date date) {
    const std::string title = formatDate(date, datePattern::month);
    const auto blank = title.find(' ');
    if (blank == std::string::npos) return {title, ""};
    return {title.substr(0, blank), title.substr(blank + 1)};
}

std::vector<Date> CustomDateHelper::datesOfMonth(Date date) { return calendar::daysOfMonth(date); }

} // namespace ombrivane
