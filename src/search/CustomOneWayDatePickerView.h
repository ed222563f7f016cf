#pragma once

#include "search/TravelCalendar.h"

#include <functional>

namespace ombrivane {

/// The calendar of the one-way form.
class CustomOneWayDatePickerView final : public TravelCalendar {
public:
    /// @param function called on every tap on a day
    CustomOneWayDatePickerView(const Field<std::string>& departureField, const Field<Date>& departure,
                               std::function<void()> function);

    Binding<std::string> onewayDepartureDateField;
    Binding<Date> onewayDepartureDate;

protected:
    void choose(Date day) override;
    void fillEmptyFields() override;
    std::string describeChosen() const override;
    std::pair<Date, Date> chosen() const override;

private:
    std::function<void()> function_;
};

} // namespace ombrivane
