#pragma once

#include "dates/TravelCalendar.h"

#include <functional>

namespace ombrivane {

/// The calendar of the round-trip form and of "Add Return Date": taps run departure, return, departure,
/// return.
class CustomRoundTripDatePickerView final : public TravelCalendar {
public:
    /// @param callback called by Done, may be empty
    CustomRoundTripDatePickerView(const Field<std::string>& departureField, const Field<Day>& departure,
                                  const Field<std::string>& returnField, const Field<Day>& returning,
                                  std::function<void()> callback);

    Binding<std::string> roundTripDepartureDateField;
    Binding<Day> roundTripDepartureDate;
    Binding<std::string> roundTripReturnDateField;
    Binding<Day> roundTripReturnDate;
    Published<bool> departureDateSelected{fields, "departureDateSelected"};
    Published<bool> returnDateSelected{fields, "returnDateSelected"};

protected:
    void choose(Day day) override;
    void fillEmptyFields() override;
    std::string describeChosen() const override;
    std::pair<Day, Day> chosen() const override;
    void afterDone() override;

private:
    void setDeparture(Day day);
    void setReturn(Day day);

    std::function<void()> callback_;
};

} // namespace ombrivane
