#include "dates/Day.h"

#include "base/Date.h"

#include <fmt/core.h>

namespace ombrivane {
namespace {

using std::chrono::year_month_day;

} // namespace

std::optional<Day> Day::parse(std::string_view text) {
    constexpr std::size_t length = 10;
    const auto point = text.size() == length ? parseIso(text) : std::nullopt;
    if (!point) return std::nullopt;
    return Day(std::chrono::floor<std::chrono::days>(*point));
}

std::string Day::text() const {
    const year_month_day day(days_);
    return fmt::format("{:04}-{:02}-{:02}",
                       static_cast<int>(day.year()),
                       static_cast<unsigned>(day.month()),
                       static_cast<unsigned>(day.day()));
}

Day Day::plusMonths(int months) const {
    year_month_day day = year_month_day(days_) + std::chrono::months(months);
    if (!day.ok()) day = day.year() / day.month() / std::chrono::last;
    return Day(day);
}

} // namespace ombrivane
