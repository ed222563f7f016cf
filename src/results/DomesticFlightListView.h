#pragma once

#include "keyed/Constant.h"
#include "results/DomesticFlightListViewModel.h"
#include "results/ResultsScreen.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/FlightSearchRoundTripProvider.h"
#include "words/Caption.h"

namespace ombrivane {

/// The domestic result list. A round trip is chosen on two tabs, a departure offer and a return offer that
/// travel together.
class DomesticFlightListView final : public ResultsScreen {
public:
    DomesticFlightListView(SearchRequest request, CompletionCallback completionCallback);

    DomesticFlightListViewModel& flightListVM;
    Published<bool> showDepartureFlightSegmant{fields, "showDepartureFlightSegmant"};
    Published<bool> showReturnFlightSegmant{fields, "showReturnFlightSegmant"};
    Derived<bool> showsTabs{fields, "showsTabs", [this] { return flightListVM.hasReturnDate.get(); }};
    Caption departingTitle{fields, "departingTitle", Text::resultsDeparting};
    Caption returningTitle{fields, "returningTitle", Text::resultsReturning};
    Action<> tapDepartingFlights{*this,
                                 "tapDepartingFlights",
                                 [this] { flightListVM.index = departureTab; },
                                 [this] { return showsTabs.get(); }};
    Action<> tapReturningFlights{
        *this, "tapReturningFlights", [this] { tapReturnTab(); }, [this] { return showsTabs.get(); }};

protected:
    void clearForSearch() override;
    void sendSearch(const FlightQuery& query, bool roundTrip) override;
    std::shared_ptr<Screen> list() const override;
    bool listIsEmpty() const override;
    bool canBeFiltered() const override;
    bool isNarrowed() const override;
    std::shared_ptr<Screen> makeFilter() override;
    std::optional<std::int64_t> totalCost() const override;
    std::optional<std::string> totalCurrency() const override;
    std::optional<AnyFlight> returningFlight() const override { return flightListVM.returnFlight; }
    void proceed() override;

private:
    /// The open tab, as `index` of the model tells it.
    static constexpr int departureTab = 0;
    static constexpr int returnTab = 1;

    DomesticFlightListView(SearchRequest request, const std::shared_ptr<DomesticFlightListViewModel>& model,
                           CompletionCallback completionCallback);
    std::shared_ptr<OneWayFlightListView> makeList(const Field<OneWayOffers>& shown,
                                                   const OfferSelection& selection, Text title);
    OfferSelection departureSelection();
    OfferSelection returnSelection();
    void tapReturnTab();
    void clearSelection();

    FlightSearchOneWayProvider flightSearchOneWayProvider_;
    FlightSearchRoundTripProvider flightSearchRoundTripProvider_;
    /// The return list chooses without a word to the Continue button, which the departure offer shows.
    Fields unkeyed_;
    Published<bool> noContinueButton_{unkeyed_, "showContinueButton"};
    std::shared_ptr<OneWayFlightListView> oneWayList_ =
        makeList(flightListVM.filteredOnewayFlights, selection(), Text::resultsDeparting);
    std::shared_ptr<OneWayFlightListView> departureList_ =
        makeList(flightListVM.filteredDepartureFlights, departureSelection(), Text::resultsDeparting);
    std::shared_ptr<OneWayFlightListView> returnList_ =
        makeList(flightListVM.filteredReturnFlights, returnSelection(), Text::resultsReturning);
};

} // namespace ombrivane
