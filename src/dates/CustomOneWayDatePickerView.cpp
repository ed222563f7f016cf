#include "dates/CustomOneWayDatePickerView.h"

#include "dates/DateFormatter.h"

namespace ombrivane {

CustomOneWayDatePickerView::CustomOneWayDatePickerView(const Field<std::string>& departureField,
                                                       const Field<Day>& departure,
                                                       std::function<void()> function) :
    TravelCalendar("CustomOneWayDatePickerView"),
    onewayDepartureDateField(fields, "onewayDepartureDateField", departureField),
    onewayDepartureDate(fields, "onewayDepartureDate", departure),
    function_(std::move(function)) {}

void CustomOneWayDatePickerView::choose(Day day) {
    onewayDepartureDate = day;
    onewayDepartureDateField = formatDay(day, dayPattern::calendar);
    function_();
}

void CustomOneWayDatePickerView::fillEmptyFields() {
    if (onewayDepartureDateField->empty()) onewayDepartureDateField = describeChosen();
}

std::string CustomOneWayDatePickerView::describeChosen() const {
    return formatDay(onewayDepartureDate, dayPattern::calendar);
}

std::pair<Day, Day> CustomOneWayDatePickerView::chosen() const {
    return {onewayDepartureDate, onewayDepartureDate};
}

} // namespace ombrivane
