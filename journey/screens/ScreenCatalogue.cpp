#include "ScreenCatalogue.h"

#include "booking/BookingConfirmationView.h"
#include "booking/BookingDetailsView.h"
#include "booking/EmergencyContactInformationView.h"
#include "booking/FlightDetailsView.h"
#include "booking/RulesAndRegulationView.h"
#include "booking/TravellerInformationView.h"
#include "dates/CustomOneWayDatePickerView.h"
#include "dates/CustomRoundTripDatePickerView.h"
#include "images/CustomAsyncImageView.h"
#include "images/PhotoPicker.h"
#include "parts/AlertView.h"
#include "results/DomesticFlightListView.h"
#include "results/FilterBottomSheetView.h"
#include "results/FlightListView.h"
#include "search/MainView.h"
#include "search/NationalityBottomSheetView.h"
#include "search/SelectDestinationFlightView.h"
#include "search/SelectOriginFlightView.h"
#include "search/TravellerBottomSheetView.h"
#include "session/EntryView.h"

namespace ombrivane::journey {
namespace {

const CompletionCallback nobody = [](const std::optional<Dictionary>&, const std::optional<Error>&) {};

SearchRequest request(bool roundTrip) {
    SearchRequest request;
    request.tripType = roundTrip ? "round" : "oneway";
    request.departCityCode = "KTM";
    request.departCity = "Kathmandu";
    request.destCityCode = "DOH";
    request.destCity = "Doha";
    request.departDate = MainViewModel::shared().departureDate;
    if (roundTrip) request.returnDate = MainViewModel::shared().returnDate.get();
    request.nationality = "NP";
    request.adults = "1";
    request.children = "0";
    request.infants = "0";
    return request;
}

OneWayOffer offer() {
    FlightSearchOneWay offer;
    offer.searchSummary.currency = "NPR";
    offer.fareInformation.totalCost = 12000;
    offer.flightSummary.carrierName = "Saffron Route Airways";
    return std::make_shared<const FlightSearchOneWay>(std::move(offer));
}

BookingGiven given(const char* itineraryType) {
    return {itineraryType, AnyFlight(offer()), std::nullopt, "Economy", "Kathmandu", "Doha", nobody};
}

/// Gathers the screens; what one of them needs of another stays alive with it.
class Catalogue {
public:
    template <class Made> std::shared_ptr<Made> add(const char* reached, std::shared_ptr<Made> screen) {
        screens.push_back({reached, screen});
        return screen;
    }

    void addSearch();
    void addResults();
    void addBooking();

    std::vector<CataloguedScreen> screens;
};

void Catalogue::addSearch() {
    auto& model = MainViewModel::shared();
    add("the root of all screens", std::make_shared<EntryView>(EntryArguments{}, nobody, Dismissal{}));
    const auto main =
        add("inside of `OmbrivaneView`, once the token has arrived", std::make_shared<MainView>(nobody));
    add("inside of `MainView`, on its second tab", main->roundTrip);
    add("by no control", main->multiCity);
    const auto origin = add("`tapOrigin` of a form", std::make_shared<SelectOriginFlightView>(model));
    origin->airports = {{"Tribhuvan International Airport", "Kathmandu", "KTM", "Nepal"}};
    add("`tapDestination` of a form, and a row of `SelectOriginFlightView`",
        std::make_shared<SelectDestinationFlightView>(model, "KTM", nullptr));
    add("`tapDate` of `OneWayView`",
        std::make_shared<CustomOneWayDatePickerView>(model.departureDateText, model.departureDate, nullptr));
    add("`tapDate` of `RoundTripView`, `addReturnDate` of a result list",
        std::make_shared<CustomRoundTripDatePickerView>(
            model.departureDateText, model.departureDate, model.returnDateText, model.returnDate, nullptr));
    add("`tapTravellers` of a form", std::make_shared<TravellerBottomSheetView>(model));
    model.countries = {{1, "Nepal", "Nepalese", "NP", "977"}};
    add("`tapNationality` of a form", std::make_shared<NationalityBottomSheetView>(model));
    model.countries = {};
    add("a refusal of a form, the third tab, five taps on the mark of `FooterView`",
        std::make_shared<AlertView>("Error!", "Please select all the fields."));
}

void Catalogue::addResults() {
    add("`search` of a form, from or to another country",
        std::make_shared<FlightListView>(request(false), nobody));
    add("the same, with a return date", std::make_shared<FlightListView>(request(true), nobody));
    add("`search` of a form, inside of the home country",
        std::make_shared<DomesticFlightListView>(request(true), nobody));
    add("in the place of a list, when no offer exists or the filter left none",
        std::make_shared<NoFlightRecommendationsView>(false, nullptr));
    add("in the place of a list, without a connection", std::make_shared<NoInternetConnectionView>(nullptr));
    FlightListViewModel model;
    model.onewayFlights = {offer()};
    add("`openFilter` of a result list",
        std::make_shared<FilterBottomSheetView>(FilterBindings{model.onewayFlights,
                                                               nullptr,
                                                               model.filteredOnewayFlights,
                                                               nullptr,
                                                               model.selectedId,
                                                               model.price,
                                                               model.time},
                                                nullptr));
    add("`continue` of a result list",
        std::make_shared<RulesAndRegulationView>(
            RulesAndRegulationView::Given{model.rulesAndRegulationViewIsActive,
                                          "M",
                                          "Kathmandu",
                                          "Doha",
                                          "oneway",
                                          AnyFlight(offer()),
                                          std::nullopt,
                                          nobody}));
}

void Catalogue::addBooking() {
    const auto session = add("`continue` of `RulesAndRegulationView`, one way",
                             std::make_shared<OWBookingDetailsView>(given("oneway")));
    session->uniquePassangerList = {UniquePassanger{.count = 1, .type = "Adult"}};
    add("`continue` of `RulesAndRegulationView`, round trip",
        std::make_shared<RTBookingDetailsView>(given("round")));
    add("the same, while its payment is in place", std::make_shared<OWBookingDetailsView>(given("oneway")))
        ->showPaymentView = true;
    add("`viewDetails` of `OWFlightInformationView`", std::make_shared<OWFlightDetailsView>(std::nullopt));
    add("`viewDetails` of `RTFlightInformationView`", std::make_shared<RTFlightDetailsView>(std::nullopt));
    add("`tap` of the contact's line",
        std::make_shared<EmergencyContactInformationView>(Uuid::random(),
                                                          "ADT",
                                                          std::vector<std::string>{"passport"},
                                                          session->emergencyContact,
                                                          session->passengersList));
    add("`tap` of a passenger's line",
        std::make_shared<TravellerInformationView>(
            TravellerGiven{Uuid::random(),
                           "Adult",
                           {"passport"},
                           true,
                           TravelDates{*Day::parse("2026-12-01"), *Day::parse("2026-12-09")},
                           session->passengersList,
                           session->documentList}));
    add("`openPhotoPicker` of `TravellerInformationView`", [] {
        Fields fields;
        return std::make_shared<PhotoPicker>(Published<std::optional<DocumentPicture>>(fields, "image"));
    }());
    add("`button` of `PaymentView`, one way",
        std::make_shared<OWBookingConfirmationView>(
            std::nullopt, std::nullopt, "Economy", std::vector<Passenger>(), nobody));
    add("`button` of `PaymentView`, round trip",
        std::make_shared<RTBookingConfirmationView>(
            std::nullopt, std::nullopt, "Economy", std::vector<Passenger>(), nobody));
    add("wherever a logo is drawn",
        std::make_shared<CustomAsyncImageView>("https://logos.example/SF.png", "SF"));
}

} // namespace

std::vector<CataloguedScreen> screenCatalogue() {
    Catalogue catalogue;
    catalogue.addSearch();
    catalogue.addResults();
    catalogue.addBooking();
    return std::move(catalogue.screens);
}

} // namespace ombrivane::journey
