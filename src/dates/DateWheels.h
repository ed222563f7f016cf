#pragma once

#include "dates/Day.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// A day between two limits, turned by its year, its month and its day: what the three wheels of a date field
/// show, in the device's own calendar and digits. Each wheel's entries are counted from 0.
class DateWheels {
public:
    /// One wheel: what it offers, and where it stands.
    struct Wheel {
        std::vector<std::string> entries;
        int index = 0;

        bool operator==(const Wheel&) const = default;
    };

    /// @param latest absent for a date that may lie far ahead
    explicit DateWheels(Day earliest, std::optional<Day> latest = std::nullopt);

    /// Stands on `day`, or on the limit that it is beyond. Nothing is a first proposal: the middle of the
    /// years between two limits, else the earliest day.
    void choose(std::optional<Day> day);
    /// Where the wheels stand.
    Day day() const { return day_; }

    Wheel years() const;
    Wheel months() const;
    Wheel days() const;

    /// Each turns one wheel to an entry. A day that the month lacks becomes its last one, a month that the
    /// year lacks its last one, and a day beyond a limit the limit.
    void turnYear(int index);
    void turnMonth(int index);
    void turnDay(int index);

private:
    void stand(const std::vector<Day>& months, int month, int day);

    Day earliest_;
    Day latest_;
    bool hasLatest_;
    Day day_;
};

} // namespace ombrivane
