#include "search/CustomOneWayDatePickerView.h"

#include "support/DateFormatter.h"

namespace ombrivane {

CustomOneWayDatePickerView::CustomOneWayDatePickerView(const Field<std::string>& departureField,
                                                       const Field<Date>& departure,
                                                       std::function<void()> function) :
    TravelCalendar("CustomOneWayDatePickerView"),
    onewayDepartureDateField(fields, "onewayDepartureDateField", departureField),
    onewayDepartureDate(fields, "onewayDepartureDate", departure),
    function_(std::move(function)) {}

void CustomOneWayDatePickerView::choose(Date day) {
    onewayDepartureDate = day;
    onewayDepartureDateField = formatDate(day, datePattern::calendar);
    function_();
}

void CustomOneWayDatePickerView::fillEmptyFields() {
    if (onewayDepartureDateField->empty()) onewayDepartureDateField = describeChosen();
}

std::string CustomOneWayDatePickerView::describeChosen() const {
    return formatDate(onewayDepartureDate, datePattern::calendar);
}

std::pair<Date, Date> CustomOneWayDatePickerView::chosen() const {
    return {onewayDepartureDate, onewayDepartureDate};
}

} // namespace ombrivane
