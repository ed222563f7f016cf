#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "results/SearchRequest.h"
#include "search/MainViewModel.h"
#include "search/TravellersText.h"
#include "services/CountryProvider.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <memory>
#include <string>

namespace ombrivane {

/// What tells the form of one tab from that of the other.
struct SearchFormTraits {
    const char* name;
    const char* modelKey;
    const char* itineraryType;
    bool hasReturnDate;
    Published<bool> AppState::*originActive;
    Published<bool> AppState::*destinationActive;
    Published<bool> AppState::*searchActive;
};

/// The search form of a tab. Everything that it holds is in the shared `MainViewModel` and `AppState`, so
/// what the customer typed on one tab stands on the other.
class SearchForm : public Screen {
private:
    const SearchFormTraits traits_;
    const CompletionCallback completionCallback_;
    AppState& appState_ = AppState::shared();
    MainViewModel& model_ = MainViewModel::shared();

public:
    SearchForm(const SearchFormTraits& traits, CompletionCallback completionCallback) :
        Screen(traits.name), traits_(traits), completionCallback_(std::move(completionCallback)) {}

    void appear() override { isInView_ = true; }
    void disappear() override { isInView_ = false; }

    Published<std::string> errorMessage{fields, "errorMessage"};
    /// The calendar is pushed.
    Published<bool> datePickerIsActive{fields, "datePickerIsActive"};

    Derived<std::string> origin{fields, "origin", [this] { return model_.originText.get(); }};
    Caption originPlaceholder{fields, "originPlaceholder", Text::searchEnterOrigin};
    /// The origin in parts, as its field shows it: a city is found faster than a line that starts with a
    /// code.
    Derived<std::string> originCity{
        fields, "originCity", [this] { return shownCity(model_.departCity, model_.originText); }};
    Derived<std::string> originCode{fields, "originCode", [this] { return model_.departCityCode.get(); }};
    Derived<std::string> originAirport{fields, "originAirport", [this] {
                                           return airportIn(
                                               model_.originText, model_.departCity, model_.departCityCode);
                                       }};
    Derived<std::string> destination{fields, "destination", [this] { return model_.destinationText.get(); }};
    Caption destinationPlaceholder{fields, "destinationPlaceholder", Text::searchEnterDestination};
    /// The destination in parts, as the origin.
    Derived<std::string> destinationCity{
        fields, "destinationCity", [this] { return shownCity(model_.destCity, model_.destinationText); }};
    Derived<std::string> destinationCode{
        fields, "destinationCode", [this] { return model_.destCityCode.get(); }};
    Derived<std::string> destinationAirport{
        fields, "destinationAirport", [this] {
            return airportIn(model_.destinationText, model_.destCity, model_.destCityCode);
        }};
    Derived<std::string> departureDate{fields, "departureDate", [this] {
                                           return shownDate(model_.departureDateText, model_.departureDate);
                                       }};
    Caption departureDatePlaceholder{fields, "departureDatePlaceholder", Text::searchDepartureDate};
    /// Of the round-trip form.
    Derived<std::string> returnDate{
        fields, "returnDate", [this] { return shownDate(model_.returnDateText, model_.returnDate); }};
    Caption returnDatePlaceholder{fields, "returnDatePlaceholder", Text::searchReturnDate};
    Derived<std::string> nationality{fields, "nationality", [this] { return model_.nationalityText.get(); }};
    Caption nationalityPlaceholder{fields, "nationalityPlaceholder", Text::searchNationality};
    Derived<std::string> travellers{
        fields, "travellers", [this] { return shownTravellers(model_.travellerText); }};
    Derived<bool> showsReturnDate{fields, "showsReturnDate", [this] { return traits_.hasReturnDate; }};
    /// A search was refused for a field that is missing, and none has gone through since: what is still
    /// missing is marked.
    Published<bool> marksMissing{fields, "marksMissing"};
    Derived<bool> originIsMissing{
        fields, "originIsMissing", [this] { return marksMissing && model_.departCity->empty(); }};
    Derived<bool> destinationIsMissing{
        fields, "destinationIsMissing", [this] { return marksMissing && model_.destCity->empty(); }};
    Derived<bool> departureDateIsMissing{fields, "departureDateIsMissing", [this] {
                                             return marksMissing && model_.departureDateText->empty();
                                         }};
    Derived<bool> returnDateIsMissing{fields, "returnDateIsMissing", [this] {
                                          return marksMissing && traits_.hasReturnDate &&
                                                 model_.isMissingReturnDate();
                                      }};
    Derived<bool> nationalityIsMissing{
        fields, "nationalityIsMissing", [this] { return marksMissing && model_.nationality->empty(); }};
    Derived<bool> isFetchingCountries{
        fields, "isFetchingCountries", [this] { return model_.showProgressView.get(); }};

    Action<> tapOrigin{*this, "tapOrigin", [this] { (appState_.*traits_.originActive) = true; }};
    Action<> swap{*this, "swap", [this] { model_.swapLocations(); }};
    Action<> tapDestination{
        *this, "tapDestination", [this] { (appState_.*traits_.destinationActive) = true; }};
    Action<> tapDate{*this, "tapDate", [this] { datePickerIsActive = true; }};
    Action<> tapNationality{*this, "tapNationality", [this] { chooseNationality(); }};
    Action<> tapTravellers{
        *this, "tapTravellers", [this] { model_.showTravellerSheet = !model_.showTravellerSheet.get(); }};
    Action<> search{*this, "search", [this] { checkAndSearch(); }};

private:
    /// A date of the form, which is shown once its text has been chosen.
    static std::string shownDate(const std::string& text, Day date);
    /// The city, or the whole text of a place that has none.
    static std::string shownCity(const std::string& city, const std::string& text);
    /// What the text of a place says beyond code and city; empty where it is put together otherwise.
    static std::string airportIn(const std::string& text, const std::string& city, const std::string& code);
    void chooseNationality();
    void checkAndSearch();
    void refuseMissing(Text message);
    SearchRequest request() const;
    std::shared_ptr<Screen> makeOriginSearch();
    std::shared_ptr<Screen> makeDestinationSearch();
    std::shared_ptr<Screen> makeList();
    std::shared_ptr<Screen> makeDomesticList();
    std::shared_ptr<Screen> makeDatePicker();
    std::shared_ptr<Screen> makeTravellerSheet();
    std::shared_ptr<Screen> makeNationalitySheet();
    std::shared_ptr<Screen> makeAlert();
    static std::shared_ptr<Screen> makeSameCityAlert();

    SpokenField errorWords_{errorMessage, Text::searchSelectAllFields};
    bool isInView_ = false;
    CountryProvider countriesProvider_;
    Model appStateModel_{fields, "appState", appState_.fields};
    Model modelModel_{fields, traits_.modelKey, model_.fields};

    Link originLink_{
        *this, Presentation::push, appState_.*traits_.originActive, [this] { return makeOriginSearch(); }};
    Link destinationLink_{*this, Presentation::push, appState_.*traits_.destinationActive, [this] {
                              return makeDestinationSearch();
                          }};
    Link searchLink_{
        *this, Presentation::push, appState_.*traits_.searchActive, [this] { return makeList(); }};
    Link domesticLink_{*this, Presentation::push, appState_.domesticSearchRootViewActive, [this] {
                           return makeDomesticList();
                       }};
    Link dateLink_{*this, Presentation::push, datePickerIsActive, [this] { return makeDatePicker(); }};
    Link travellerSheet_{
        *this, Presentation::sheet, model_.showTravellerSheet, [this] { return makeTravellerSheet(); }};
    Link nationalitySheet_{
        *this, Presentation::sheet, model_.showNationalitySheet, [this] { return makeNationalitySheet(); }};
    Link alert_{*this, Presentation::alert, model_.showAlert, [this] { return makeAlert(); }};
    Link sameCityAlert_{
        *this, Presentation::alert, model_.showDestinationSameAlert, [] { return makeSameCityAlert(); }};
};

} // namespace ombrivane
