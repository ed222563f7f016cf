#include "search/SearchForm.h"

#include "dates/CustomOneWayDatePickerView.h"
#include "dates/CustomRoundTripDatePickerView.h"
#include "dates/DateFormatter.h"
#include "parts/AlertView.h"
#include "platform/OnMain.h"
#include "results/DomesticFlightListView.h"
#include "results/FlightListView.h"
#include "search/NationalityBottomSheetView.h"
#include "search/SelectDestinationFlightView.h"
#include "search/SelectOriginFlightView.h"
#include "search/TravellerBottomSheetView.h"

namespace ombrivane {
namespace {

/// A date of the form, which is shown once its text has been chosen.
std::string shownDate(const std::string& text, Day date) {
    return text.empty() ? "" : formatDay(date, dayPattern::form);
}

} // namespace

SearchForm::SearchForm(const SearchFormTraits& traits, CompletionCallback completionCallback) :
    Screen(traits.name),
    origin(fields, "origin", [this] { return model_.originText.get(); }),
    originPlaceholder(fields, "originPlaceholder", constant("Enter Origin")),
    destination(fields, "destination", [this] { return model_.destinationText.get(); }),
    destinationPlaceholder(fields, "destinationPlaceholder", constant("Enter Destination")),
    departureDate(fields, "departureDate",
                  [this] { return shownDate(model_.departureDateText, model_.departureDate); }),
    departureDatePlaceholder(fields, "departureDatePlaceholder", constant("Departure Date")),
    returnDate(fields, "returnDate", [this] { return shownDate(model_.returnDateText, model_.returnDate); }),
    returnDatePlaceholder(fields, "returnDatePlaceholder", constant("Return Date")),
    nationality(fields, "nationality", [this] { return model_.nationalityText.get(); }),
    nationalityPlaceholder(fields, "nationalityPlaceholder", constant("Select Nationality")),
    travellers(fields, "travellers", [this] { return model_.travellerText.get(); }),
    showsReturnDate(fields, "showsReturnDate", [this] { return traits_.hasReturnDate; }),
    isFetchingCountries(fields, "isFetchingCountries", [this] { return model_.showProgressView.get(); }),
    tapOrigin(*this, "tapOrigin", [this] { (appState_.*traits_.originActive) = true; }),
    swap(*this, "swap", [this] { model_.swapLocations(); }),
    tapDestination(*this, "tapDestination", [this] { (appState_.*traits_.destinationActive) = true; }),
    tapDate(*this, "tapDate", [this] { datePickerIsActive = true; }),
    tapNationality(*this, "tapNationality", [this] { chooseNationality(); }),
    tapTravellers(*this, "tapTravellers",
                  [this] { model_.showTravellerSheet = !model_.showTravellerSheet.get(); }),
    search(*this, "search", [this] { checkAndSearch(); }),
    traits_(traits),
    completionCallback_(std::move(completionCallback)),
    appState_(AppState::shared()),
    model_(MainViewModel::shared()),
    appStateModel_(fields, "appState", appState_.fields),
    modelModel_(fields, traits_.modelKey, model_.fields),
    originLink_(*this, Presentation::push, appState_.*traits_.originActive,
                [this] { return std::make_shared<SelectOriginFlightView>(model_); }),
    destinationLink_(*this, Presentation::push, appState_.*traits_.destinationActive,
                     [this] {
                         return std::make_shared<SelectDestinationFlightView>(
                             model_, model_.departCityCode.get(), nullptr);
                     }),
    searchLink_(*this, Presentation::push, appState_.*traits_.searchActive,
                [this] { return std::make_shared<FlightListView>(request(), completionCallback_); }),
    domesticLink_(
        *this, Presentation::push, appState_.domesticSearchRootViewActive,
        [this] { return std::make_shared<DomesticFlightListView>(request(), completionCallback_); }),
    dateLink_(*this, Presentation::push, datePickerIsActive, [this] { return makeDatePicker(); }),
    travellerSheet_(*this, Presentation::sheet, model_.showTravellerSheet,
                    [this] { return std::make_shared<TravellerBottomSheetView>(model_); }),
    nationalitySheet_(*this, Presentation::sheet, model_.showNationalitySheet,
                      [this] { return std::make_shared<NationalityBottomSheetView>(model_); }),
    alert_(*this, Presentation::alert, model_.showAlert,
           [this] { return std::make_shared<AlertView>("Error!", errorMessage.get()); }),
    sameCityAlert_(*this, Presentation::alert, model_.showDestinationSameAlert, [] {
        return std::make_shared<AlertView>("Error!", "Departure / Destination city cannot be same");
    }) {}

void SearchForm::chooseNationality() {
    if (!model_.countries->empty()) {
        model_.showNationalitySheet = !model_.showNationalitySheet.get();
        return;
    }
    if (model_.showProgressView) return; // one request answers every tap
    model_.showProgressView = true;
    const std::weak_ptr<Screen> form = weak_from_this();
    countriesProvider_.fetchCountries(
        onMain<std::vector<Country>>([form](std::vector<Country> countries, std::optional<Error> error) {
            auto& model = MainViewModel::shared();
            if (error) {
                model.showProgressView = false;
                platform().diagnostics->print(error->localizedDescription);
                return;
            }
            model.countries = std::move(countries);
            model.showProgressView = false;
            // The customer may have gone on meanwhile: nothing opens over another screen.
            const auto asking = std::static_pointer_cast<SearchForm>(form.lock());
            if (asking && asking->isInView_ && asking->takesInput()) model.showNationalitySheet = true;
        }));
}

void SearchForm::refuse(const char* message) {
    errorMessage = message;
    model_.showAlert = true;
}

void SearchForm::checkAndSearch() {
    if (model_.isMissingFields()) return refuse("Please select all the fields.");
    if (traits_.hasReturnDate && model_.isMissingReturnDate()) return refuse("Please select return date.");
    if (model_.departCityCode.get() == model_.destCityCode.get()) {
        model_.showDestinationSameAlert = true;
    } else if (model_.isDomestic()) {
        appState_.domesticSearchRootViewActive = true;
    } else {
        (appState_.*traits_.searchActive) = true;
    }
}

SearchRequest SearchForm::request() const {
    SearchRequest request;
    request.tripType = traits_.itineraryType;
    request.departCityCode = model_.departCityCode;
    request.departCity = model_.departCity;
    request.destCityCode = model_.destCityCode;
    request.destCity = model_.destCity;
    request.departDate = model_.departureDate;
    if (traits_.hasReturnDate) request.returnDate = model_.returnDate.get();
    request.nationality = model_.nationality;
    request.adults = model_.adult;
    request.children = model_.child;
    request.infants = model_.infant;
    request.flightClass = model_.cabinClassCode();
    return request;
}

std::shared_ptr<Screen> SearchForm::makeDatePicker() {
    if (!traits_.hasReturnDate) {
        return std::make_shared<CustomOneWayDatePickerView>(
            model_.departureDateText, model_.departureDate, [] {
                MainViewModel::shared().setDefaultReturnDate();
            });
    }
    return std::make_shared<CustomRoundTripDatePickerView>(
        model_.departureDateText, model_.departureDate, model_.returnDateText, model_.returnDate, nullptr);
}

} // namespace ombrivane
