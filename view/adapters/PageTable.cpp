#include "adapters/PageTable.h"

#include "adapters/EntryAdapter.h"
#include "adapters/MonthAdapter.h"
#include "adapters/OfferAdapter.h"
#include "adapters/PhotoPickerAdapter.h"
#include "adapters/ResultsAdapter.h"
#include "adapters/SessionAdapter.h"
#include "adapters/screens/AirportRowAdapter.h"
#include "adapters/screens/AirportSearchAdapter.h"
#include "adapters/screens/AlertAdapter.h"
#include "adapters/screens/CalendarAdapter.h"
#include "adapters/screens/ConfirmationAdapter.h"
#include "adapters/screens/ContactLineAdapter.h"
#include "adapters/screens/DocumentTypeAdapter.h"
#include "adapters/screens/DomesticFlightListAdapter.h"
#include "adapters/screens/EmergencyAdapter.h"
#include "adapters/screens/FilterAdapter.h"
#include "adapters/screens/FlightDetailsAdapter.h"
#include "adapters/screens/NationalityRowAdapter.h"
#include "adapters/screens/NationalitySheetAdapter.h"
#include "adapters/screens/NoFlightsAdapter.h"
#include "adapters/screens/NoInternetAdapter.h"
#include "adapters/screens/OfferCardAdapter.h"
#include "adapters/screens/OfferListAdapter.h"
#include "adapters/screens/RadioRowAdapter.h"
#include "adapters/screens/RulesAdapter.h"
#include "adapters/screens/StepperAdapter.h"
#include "adapters/screens/TimeCardAdapter.h"
#include "adapters/screens/TravellerAdapter.h"
#include "adapters/screens/TravellerSheetAdapter.h"
#include "base/Fault.h"

#include <functional>
#include <map>
#include <string_view>

namespace ombrivane::view {
namespace {

struct Row {
    const char* page; ///< below the module's pages; nullptr for a row of a list
    std::unique_ptr<ScreenAdapter> (*make)(std::shared_ptr<Screen>);
};

template <class Adapter> std::unique_ptr<ScreenAdapter> make(std::shared_ptr<Screen> screen) {
    return std::make_unique<Adapter>(std::move(screen));
}

const std::map<std::string_view, Row>& table() {
    static const std::map<std::string_view, Row> rows{
        {"OmbrivaneView", {"EntryPage", make<EntryAdapter>}},
        {"AlertView", {"AlertView", make<AlertAdapter>}},
        {"SelectOriginFlightView", {"SelectAirportView", make<AirportSearchAdapter>}},
        {"SelectDestinationFlightView", {"SelectAirportView", make<AirportSearchAdapter>}},
        {"FlightListItemView", {nullptr, make<AirportRowAdapter>}},
        {"TravellerBottomSheetView", {"TravellerBottomSheetView", make<TravellerSheetAdapter>}},
        {"TravellerIncDecButtonView", {nullptr, make<StepperAdapter>}},
        {"CustomRadioButtonFieldView", {nullptr, make<RadioRowAdapter>}},
        {"NationalityBottomSheetView", {"NationalityBottomSheetView", make<NationalitySheetAdapter>}},
        {"NationalityRow", {nullptr, make<NationalityRowAdapter>}},
        {"CustomOneWayDatePickerView", {"TravelCalendarView", make<CalendarAdapter>}},
        {"CustomRoundTripDatePickerView", {"TravelCalendarView", make<CalendarAdapter>}},
        {"Month", {nullptr, make<MonthAdapter>}},
        {"FlightListView", {"FlightListView", make<ResultsAdapter>}},
        {"DomesticFlightListView", {"DomesticFlightListView", make<DomesticFlightListAdapter>}},
        {"OneWayFlightListView", {"OfferListView", make<OfferListAdapter>}},
        {"RoundTripFlightListView", {"OfferListView", make<OfferListAdapter>}},
        {"OneWayListItemView", {nullptr, make<OfferAdapter>}},
        {"RoundTripListItemView", {nullptr, make<OfferAdapter>}},
        {"OneWayHorizontalListItemView", {nullptr, make<OfferCardAdapter>}},
        {"RoundTripHorizontalListItemView", {nullptr, make<OfferCardAdapter>}},
        {"NoFlightRecommendationsView", {"NoFlightRecommendationsView", make<NoFlightsAdapter>}},
        {"NoInternetConnectionView", {"NoInternetConnectionView", make<NoInternetAdapter>}},
        {"FilterBottomSheetView", {"FilterBottomSheetView", make<FilterAdapter>}},
        {"TimeCardView", {nullptr, make<TimeCardAdapter>}},
        {"RulesAndRegulationView", {"RulesAndRegulationView", make<RulesAdapter>}},
        {"OWBookingDetailsView", {"BookingSessionView", make<SessionAdapter>}},
        {"RTBookingDetailsView", {"BookingSessionView", make<SessionAdapter>}},
        {"PassengerLine", {nullptr, make<ContactLineAdapter>}},
        {"OWFlightDetailsView", {"FlightDetailsView", make<FlightDetailsAdapter>}},
        {"RTFlightDetailsView", {"FlightDetailsView", make<FlightDetailsAdapter>}},
        {"TravellerInformationView", {"TravellerInformationView", make<TravellerAdapter>}},
        {"DocumentTypeTile", {nullptr, make<DocumentTypeAdapter>}},
        {"EmergencyContactInformationView", {"EmergencyContactInformationView", make<EmergencyAdapter>}},
        {"OWBookingConfirmationView", {"BookingConfirmationView", make<ConfirmationAdapter>}},
        {"RTBookingConfirmationView", {"BookingConfirmationView", make<ConfirmationAdapter>}},
        {"PhotoPicker", {"PhotoPicker", make<PhotoPickerAdapter>}},
    };
    return rows;
}

const Row& rowOf(const Screen& screen) {
    const auto found = table().find(screen.name());
    if (found == table().end()) fatalFault("no page shows the screen " + std::string(screen.name()));
    return found->second;
}

} // namespace

std::unique_ptr<ScreenAdapter> makeAdapter(const std::shared_ptr<Screen>& screen) {
    return rowOf(*screen).make(screen);
}

std::shared_ptr<ScreenAdapter> deletedLater(std::unique_ptr<ScreenAdapter> adapter) {
    return {adapter.release(), [](ScreenAdapter* object) { object->deleteLater(); }};
}

QUrl pageOf(const Screen& screen) {
    const char* page = rowOf(screen).page;
    if (page == nullptr) return {};
    return QUrl("qrc:/qt-project.org/imports/Ombrivane/Private/pages/" + QString(page) + ".qml");
}

} // namespace ombrivane::view
