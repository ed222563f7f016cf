#pragma once

#include "dates/TravelCalendar.h"

#include <functional>

namespace ombrivane {

/// The calendar of the one-way form.
class CustomOneWayDatePickerView final : public TravelCalendar {
public:
    /// @param function called on every tap on a day
    CustomOneWayDatePickerView(const Field<std::string>& departureField, const Field<Day>& departure,
                               std::function<void()> function);

    Binding<std::string> onewayDepartureDateField;
    Binding<Day> onewayDepartureDate;

protected:
    void choose(Day day) override;
    void fillEmptyFields() override;
    std::string describeChosen() const override;
    std::pair<Day, Day> chosen() const override;

private:
    std::function<void()> function_;
};

} // namespace ombrivane
