#include "base/Date.h"

#include <fmt/core.h>

#include <charconv>

namespace ombrivane {
namespace {

using namespace std::chrono;

/// Reads ISO parts from the front of a text.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::optional<int> number(std::size_t length) {
        if (rest_.size() < length) return std::nullopt;
        int value = 0;
        const auto* end = rest_.data() + length;
        const auto [stop, failure] = std::from_chars(rest_.data(), end, value);
        if (failure != std::errc() || stop != end || value < 0) return std::nullopt;
        rest_.remove_prefix(length);
        return value;
    }

    bool skip(char character) {
        if (rest_.empty() || rest_.front() != character) return false;
        rest_.remove_prefix(1);
        return true;
    }

    bool atEnd() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

std::optional<minutes> readOffset(Reader& reader) {
    if (reader.atEnd() || reader.skip('Z')) return minutes(0);
    const bool east = reader.skip('+');
    if (!east && !reader.skip('-')) return std::nullopt;
    const auto hour = reader.number(2);
    if (!hour || !reader.skip(':')) return std::nullopt;
    const auto minute = reader.number(2);
    if (!minute) return std::nullopt;
    const minutes offset = hours(*hour) + minutes(*minute);
    return east ? offset : -offset;
}

} // namespace

std::string isoText(Date date) {
    const auto dayPoint = floor<days>(date);
    const year_month_day day(dayPoint);
    const hh_mm_ss time(floor<seconds>(date - dayPoint));
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z",
                       static_cast<int>(day.year()),
                       static_cast<unsigned>(day.month()),
                       static_cast<unsigned>(day.day()),
                       time.hours().count(),
                       time.minutes().count(),
                       time.seconds().count());
}

std::optional<Date> parseIso(std::string_view text) {
    Reader reader(text);
    const auto yearPart = reader.number(4);
    if (!yearPart || !reader.skip('-')) return std::nullopt;
    const auto monthPart = reader.number(2);
    if (!monthPart || !reader.skip('-')) return std::nullopt;
    const auto dayPart = reader.number(2);
    if (!dayPart) return std::nullopt;
    const year_month_day day(year(*yearPart),
                             month(static_cast<unsigned>(*monthPart)),
                             std::chrono::day(static_cast<unsigned>(*dayPart)));
    if (!day.ok()) return std::nullopt;
    Date date = sys_days(day);
    if (reader.atEnd()) return date;

    if (!reader.skip('T')) return std::nullopt;
    const auto hourPart = reader.number(2);
    if (!hourPart || !reader.skip(':')) return std::nullopt;
    const auto minutePart = reader.number(2);
    if (!minutePart || *hourPart > 23 || *minutePart > 59) return std::nullopt;
    date += hours(*hourPart) + minutes(*minutePart);
    if (reader.skip(':')) {
        const auto secondPart = reader.number(2);
        if (!secondPart || *secondPart > 59) return std::nullopt;
        date += seconds(*secondPart);
    }
    const auto offset = readOffset(reader);
    if (!offset || !reader.atEnd()) return std::nullopt;
    return date - *offset;
}

} // namespace ombrivane
