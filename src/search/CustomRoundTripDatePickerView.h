#pragma once

#include "search/TravelCalendar.h"

#include <functional>

namespace ombrivane {

/// The calendar of the round-trip form and of "Add Return Date": taps run departure, return, departure,
/// return.
class CustomRoundTripDatePickerView final : public TravelCalendar {
public:
    /// @param callback called by Done, may be empty
    CustomRoundTripDatePickerView(const Field<std::string>& departureField, const Field<Date>& departure,
                                  const Field<std::string>& returnField, const Field<Date>& returning,
                                  std::function<void()> callback);

    Binding<std::string> roundTripDepartureDateField;
    Binding<Date> roundTripDepartureDate;
    Binding<std::string> roundTripReturnDateField;
    Binding<Date> roundTripReturnDate;
    Published<bool> departureDateSelected{fields, "departureDateSelected"};
    Published<bool> returnDateSelected{fields, "returnDateSelected"};

protected:
    void choose(Date day) override;
    void fillEmptyFields() override;
    std::string describeChosen() const override;
    std::pair<Date, Date> chosen() const override;
    void afterDone() override;

private:
    void setDeparture(Date day);
    void setReturn(Date day);

    std::function<void()> callback_;
};

} // namespace ombrivane
