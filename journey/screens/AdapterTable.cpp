#include "AdapterTable.h"

#include "booking/BaggageInformationView.h"
#include "booking/JourneyCard.h"
#include "booking/TicketTravellerInfo.h"
#include "keyed/Derived.h"
#include "offers/OfferLines.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace ombrivane::journey {
namespace {

template <class Value> bool isListOf(const Member& member) {
    return dynamic_cast<const Derived<std::vector<Value>>*>(&member) != nullptr;
}

/// The forms of what a value holds. Whatever is not named here has none.
template <class Value, class T> ValueEntry entryOf(const ShownField<Value, T>& field) {
    return {field.key, ValueEntry::Kind::other, ""};
}
template <class Value> ValueEntry entryOf(const ShownField<Value, std::string>& field) {
    return {field.key, ValueEntry::Kind::text, ""};
}
template <class Value> ValueEntry entryOf(const ShownField<Value, std::vector<std::string>>& field) {
    return {field.key, ValueEntry::Kind::texts, ""};
}
ValueEntry entryOf(const ShownField<JourneyCard, std::vector<LegLines>>& field) {
    return {field.key, ValueEntry::Kind::list, "LegValue"};
}
ValueEntry entryOf(const ShownField<JourneyLines, std::vector<SegmentLines>>& field) {
    return {field.key, ValueEntry::Kind::list, "SegmentAdapter"};
}
ValueEntry entryOf(const ShownField<TicketPassengerBlock, std::vector<TicketTravellerInfo>>& field) {
    return {field.key, ValueEntry::Kind::list, "TicketLineValue"};
}

template <class Value>
ValueRow value(std::string_view type, std::string_view core, std::string_view header,
               std::string_view written = "") {
    ValueRow row{type, core, header, {}, isListOf<Value>, written};
    std::apply([&](const auto&... field) { (row.entries.push_back(entryOf(field)), ...); }, Value::shown);
    return row;
}

} // namespace

const std::vector<AdapterRow>& adapterRows() {
    static const std::vector<AdapterRow> rows{
        {"AlertAdapter", "AlertView", "parts/AlertView.h"},
        {"FooterAdapter", "FooterView", "parts/FooterView.h"},
        {"RadioRowAdapter", "CustomRadioButtonFieldView", "parts/CustomRadioButtonFieldView.h"},
        {"MainViewAdapter", "MainView", "search/MainView.h", "", "MainViewProperties"},
        {"SearchFormAdapter", "SearchForm", "search/SearchForm.h", "OneWayView"},
        {"AirportSearchAdapter", "AirportSearch", "search/AirportSearch.h", "SelectOriginFlightView"},
        {"AirportRowAdapter", "FlightListItemView", "search/AirportSearch.h"},
        {"TravellerSheetAdapter", "TravellerBottomSheetView", "search/TravellerBottomSheetView.h"},
        {"StepperAdapter", "TravellerIncDecButtonView", "search/TravellerIncDecButtonView.h"},
        {"NationalitySheetAdapter", "NationalityBottomSheetView", "search/NationalityBottomSheetView.h"},
        {"NationalityRowAdapter", "NationalityRow", "search/NationalityBottomSheetView.h"},
        {"CalendarAdapter", "TravelCalendar", "dates/TravelCalendar.h", "CustomOneWayDatePickerView"},
        {"MonthAdapter", "TravelCalendar::Month", "dates/TravelCalendar.h", "Month", "MonthProperties"},
        {"ResultsAdapter", "ResultsScreen", "results/ResultsScreen.h", "FlightListView", "ResultsProperties"},
        {"DomesticFlightListAdapter",
         "DomesticFlightListView",
         "results/DomesticFlightListView.h",
         "",
         "",
         "ResultsAdapter"},
        {"OfferListAdapter", "OfferList", "results/OfferListView.h", "OneWayFlightListView"},
        {"OfferAdapter", "OfferItemView", "results/OfferItemView.h", "OneWayListItemView", "OfferProperties"},
        {"OfferCardAdapter", "OfferCardView", "results/OfferItemView.h", "RoundTripHorizontalListItemView"},
        {"NoFlightsAdapter", "NoFlightRecommendationsView", "results/EmptyStates.h"},
        {"NoInternetAdapter", "NoInternetConnectionView", "results/EmptyStates.h"},
        {"FilterAdapter", "FilterBottomSheetView", "results/FilterBottomSheetView.h"},
        {"TimeCardAdapter", "TimeCardView", "results/FilterBottomSheetView.h"},
        {"RulesAdapter", "RulesAndRegulationView", "booking/RulesAndRegulationView.h"},
        {"SessionAdapter",
         "BookingSession",
         "booking/BookingSession.h",
         "OWBookingDetailsView",
         "SessionProperties"},
        {"FlightInformationAdapter",
         "FlightInformationView",
         "booking/FlightInformationView.h",
         "OWFlightInformationView"},
        {"BaggageAdapter",
         "BaggageInformationView",
         "booking/BaggageInformationView.h",
         "OWBaggageInformationView"},
        {"ContactListAdapter", "OWPessangerContactDetailView", "booking/OWPessangerContactDetailView.h"},
        {"ContactLineAdapter", "ContactLine", "booking/OWPessangerContactDetailView.h"},
        {"PaymentAdapter", "PaymentView", "booking/PaymentView.h"},
        {"FlightDetailsAdapter", "FlightDetailsView", "booking/FlightDetailsView.h", "OWFlightDetailsView"},
        {"TravellerAdapter", "TravellerInformationView", "booking/TravellerInformationView.h"},
        {"DocumentTypeAdapter", "DocumentTypeTile", "booking/TravellerInformationView.h"},
        {"EmergencyAdapter", "EmergencyContactInformationView", "booking/EmergencyContactInformationView.h"},
        {"ConfirmationAdapter",
         "BookingConfirmationView",
         "booking/BookingConfirmationView.h",
         "OWBookingConfirmationView"},
    };
    return rows;
}

const std::vector<ValueRow>& valueRows() {
    static const std::vector<ValueRow> rows{
        value<SegmentLines>("SegmentAdapter", "SegmentLines", "offers/OfferLines.h"),
        value<JourneyLines>("JourneyAdapter", "JourneyLines", "offers/OfferLines.h", "JourneyProperties"),
        value<LegLines>("LegValue", "LegLines", "booking/JourneyCard.h"),
        value<JourneyCard>("JourneyValue", "JourneyCard", "booking/JourneyCard.h"),
        value<BaggageBlock>("BaggageValue", "BaggageBlock", "booking/BaggageInformationView.h"),
        value<TicketFlightBlock>("TicketFlightValue", "TicketFlightBlock", "booking/TicketTravellerInfo.h"),
        value<TicketTravellerInfo>("TicketLineValue", "TicketTravellerInfo", "booking/TicketTravellerInfo.h"),
        value<TicketPassengerBlock>(
            "TicketPassengerValue", "TicketPassengerBlock", "booking/TicketTravellerInfo.h"),
    };
    return rows;
}

const std::vector<OtherName>& otherNames() {
    static const std::vector<OtherName> names{
        // A word of both languages.
        {"", "continue", "proceed", "continue_"},
        // What a screen waits for is one part of it.
        {"", "waitText", "waitText", "wait.waitText"},
        {"", "waitHint", "waitHint", "wait.waitHint"},
        // A screen's own name is a member of each.
        {"AirportRowAdapter", "name", "name", "name_"},
        // What is looked for; each of the two screens has a key of its own for it.
        {"AirportSearchAdapter", "originText", "typed", "text"},
        // What both kinds of result list have of their models.
        {"ResultsAdapter", "flightListVM", "", "model()"},
        // In a page `index` is the place of a row.
        {"DomesticFlightListAdapter", "flightListVM.index", "tab", "index"},
        // It is drawn, and its size in points is asked for, by the tile of the document.
        {"TravellerAdapter", "TIVM.documentImage", "document", "documentImage"},
        // What a field shows has the name of the field, also that of a date; the day and its limits are what
        // the wheels turn to.
        {"TravellerAdapter", "dateOfBirthText", "dateOfBirth", "dateOfBirthText"},
        {"TravellerAdapter", "TIVM.dateOfBirth", "dayOfBirth", "dateOfBirth"},
        {"TravellerAdapter", "minDOB", "earliestDateOfBirth", "minDOB"},
        {"TravellerAdapter", "expiryDateText", "expiryDate", "expiryDateText"},
        {"TravellerAdapter", "TIVM.expiryDate", "expiryDay", "expiryDate"},
        {"TravellerAdapter", "minPpDate", "earliestExpiryDate", "minPpDate"},
    };
    return names;
}

const ValueRow* listedValue(const Member& member) {
    const auto& rows = valueRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const ValueRow& row) { return row.isListedBy(member); });
    return found == rows.end() ? nullptr : &*found;
}

} // namespace ombrivane::journey
