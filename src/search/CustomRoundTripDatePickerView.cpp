#include "search/CustomRoundTripDatePickerView.h"

#include "search/TripDates.h"
#include "support/DateFormatter.h"

namespace ombrivane {

CustomRoundTripDatePickerView::CustomRoundTripDatePickerView(const Field<std::string>& departureField,
                                                             const Field<Date>& departure,
                                                             const Field<std::string>& returnField,
                                                             const Field<Date>& returning,
                                                             std::function<void()> callback) :
    TravelCalendar("CustomRoundTripDatePickerView"),
    roundTripDepartureDateField(fields, "roundTripDepartureDateField", departureField),
    roundTripDepartureDate(fields, "roundTripDepartureDate", departure),
    roundTripReturnDateField(fields, "roundTripReturnDateField", returnField),
    roundTripReturnDate(fields, "roundTripReturnDate", returning),
    callback_(std::move(callback)) {}

void CustomRoundTripDatePickerView::setDeparture(Date day) {
    roundTripDepartureDate = day;
    roundTripDepartureDateField = formatDate(day, datePattern::calendar);
}

void CustomRoundTripDatePickerView::setReturn(Date day) {
    roundTripReturnDate = day;
    roundTripReturnDateField = formatDate(day, datePattern::calendar);
}

void CustomRoundTripDatePickerView::choose(Date day) {
    if (!departureDateSelected) {
        setDeparture(day);
        setReturn(defaultReturn(day));
        departureDateSelected = true;
    } else if (!returnDateSelected) {
        // A day before the departure is accepted here.
        setReturn(day);
        returnDateSelected = true;
    } else {
        setDeparture(day);
        setReturn(defaultReturn(day));
        returnDateSelected = false;
    }
}

void CustomRoundTripDatePickerView::fillEmptyFields() {
    if (roundTripDepartureDateField->empty()) setDeparture(roundTripDepartureDate);
    if (roundTripReturnDateField->empty()) setReturn(roundTripReturnDate);
}

std::string CustomRoundTripDatePickerView::describeChosen() const {
    return formatDate(roundTripDepartureDate, datePattern::calendar) + " - " +
           formatDate(roundTripReturnDate, datePattern::calendar);
}

std::pair<Date, Date> CustomRoundTripDatePickerView::chosen() const {
    return {roundTripDepartureDate, roundTripReturnDate};
}

void CustomRoundTripDatePickerView::afterDone() {
    if (callback_) callback_();
}

} // namespace ombrivane
