#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "results/SearchRequest.h"
#include "search/MainViewModel.h"
#include "services/CountryProvider.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"

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
public:
    SearchForm(const SearchFormTraits& traits, CompletionCallback completionCallback);

    void appear() override { isInView_ = true; }
    void disappear() override { isInView_ = false; }

    Published<std::string> errorMessage{fields, "errorMessage", "Please select all the fields."};
    /// The calendar is pushed.
    Published<bool> datePickerIsActive{fields, "datePickerIsActive"};

    Derived<std::string> origin;
    Derived<std::string> originPlaceholder;
    Derived<std::string> destination;
    Derived<std::string> destinationPlaceholder;
    Derived<std::string> departureDate;
    Derived<std::string> departureDatePlaceholder;
    Derived<std::string> returnDate; ///< of the round-trip form
    Derived<std::string> returnDatePlaceholder;
    Derived<std::string> nationality;
    Derived<std::string> nationalityPlaceholder;
    Derived<std::string> travellers;
    Derived<bool> showsReturnDate;
    Derived<bool> isFetchingCountries;

    Action<> tapOrigin;
    Action<> swap;
    Action<> tapDestination;
    Action<> tapDate;
    Action<> tapNationality;
    Action<> tapTravellers;
    Action<> search;

private:
    void chooseNationality();
    void checkAndSearch();
    void refuse(const char* message);
    SearchRequest request() const;
    std::shared_ptr<Screen> makeDatePicker();

    bool isInView_ = false;
    const SearchFormTraits traits_;
    CompletionCallback completionCallback_;
    AppState& appState_;
    MainViewModel& model_;
    CountryProvider countriesProvider_;
    Model appStateModel_;
    Model modelModel_;

    Link originLink_;
    Link destinationLink_;
    Link searchLink_;
    Link domesticLink_;
    Link dateLink_;
    Link travellerSheet_;
    Link nationalitySheet_;
    Link alert_;
    Link sameCityAlert_;
};

} // namespace ombrivane
