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

std::string SearchForm::shownDate(const std::string& text, Day date) {
    return text.empty() ? "" : formatDay(date, dayPattern::form);
}

std::string SearchForm::shownCity(const std::string& city, const std::string& text) {
    return city.empty() ? text : city;
}

std::string SearchForm::airportIn(const std::string& text, const std::string& city, const std::string& code) {
    const std::string start = AirportSearch::describe({"", city, code, std::nullopt});
    return text.starts_with(start) ? text.substr(start.size()) : "";
}

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

void SearchForm::refuseMissing(Text message) {
    errorMessage = said(message);
    marksMissing = true;
    model_.showAlert = true;
}

void SearchForm::checkAndSearch() {
    if (model_.isMissingFields()) return refuseMissing(Text::searchSelectAllFields);
    if (traits_.hasReturnDate && model_.isMissingReturnDate())
        return refuseMissing(Text::searchSelectReturnDate);
    marksMissing = false;
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

std::shared_ptr<Screen> SearchForm::makeOriginSearch() {
    return std::make_shared<SelectOriginFlightView>(model_);
}

std::shared_ptr<Screen> SearchForm::makeDestinationSearch() {
    return std::make_shared<SelectDestinationFlightView>(model_, model_.departCityCode.get(), nullptr);
}

std::shared_ptr<Screen> SearchForm::makeList() {
    return std::make_shared<FlightListView>(request(), completionCallback_);
}

std::shared_ptr<Screen> SearchForm::makeDomesticList() {
    return std::make_shared<DomesticFlightListView>(request(), completionCallback_);
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

std::shared_ptr<Screen> SearchForm::makeTravellerSheet() {
    return std::make_shared<TravellerBottomSheetView>(model_);
}

std::shared_ptr<Screen> SearchForm::makeNationalitySheet() {
    return std::make_shared<NationalityBottomSheetView>(model_);
}

std::shared_ptr<Screen> SearchForm::makeAlert() {
    return std::make_shared<AlertView>(said(Text::alertError), errorMessage.get());
}

std::shared_ptr<Screen> SearchForm::makeSameCityAlert() {
    return std::make_shared<AlertView>(said(Text::alertError), said(Text::searchSameCity));
}

} // namespace ombrivane
