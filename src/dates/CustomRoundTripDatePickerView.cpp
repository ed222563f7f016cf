#include "dates/CustomRoundTripDatePickerView.h"

#include "dates/DateFormatter.h"
#include "dates/TripDates.h"

namespace ombrivane {

CustomRoundTripDatePickerView::CustomRoundTripDatePickerView(const Field<std::string>& departureField,
                                                             const Field<Day>& departure,
                                                             const Field<std::string>& returnField,
                                                             const Field<Day>& returning,
                                                             std::function<void()> callback) :
    TravelCalendar("CustomRoundTripDatePickerView"),
    roundTripDepartureDateField(fields, "roundTripDepartureDateField", departureField),
    roundTripDepartureDate(fields, "roundTripDepartureDate", departure),
    roundTripReturnDateField(fields, "roundTripReturnDateField", returnField),
    roundTripReturnDate(fields, "roundTripReturnDate", returning),
    callback_(std::move(callback)) {}

void CustomRoundTripDatePickerView::setDeparture(Day day) {
    roundTripDepartureDate = day;
    roundTripDepartureDateField = formatDay(day, dayPattern::calendar);
}

void CustomRoundTripDatePickerView::setReturn(Day day) {
    roundTripReturnDate = day;
    roundTripReturnDateField = formatDay(day, dayPattern::calendar);
}

void CustomRoundTripDatePickerView::choose(Day day) {
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
    return said(Text::dateRange,
                {{"first", formatDay(roundTripDepartureDate, dayPattern::calendar)},
                 {"last", formatDay(roundTripReturnDate, dayPattern::calendar)}});
}

std::pair<Day, Day> CustomRoundTripDatePickerView::chosen() const {
    return {roundTripDepartureDate, roundTripReturnDate};
}

void CustomRoundTripDatePickerView::afterDone() {
    if (callback_) callback_();
}

} // namespace ombrivane
