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
    /// When the chosen offer of a tab departs and what it costs; empty, and empty, while none is chosen.
    Derived<std::string> departingTime{
        fields, "departingTime", [this] { return timeOf(flightListVM.flight); }};
    Derived<std::string> departingPrice{
        fields, "departingPrice", [this] { return priceOf(flightListVM.flight); }};
    Derived<std::string> returningTime{
        fields, "returningTime", [this] { return timeOf(flightListVM.returnFlight); }};
    Derived<std::string> returningPrice{
        fields, "returningPrice", [this] { return priceOf(flightListVM.returnFlight); }};
    /// What a tab says while nothing is chosen on it.
    Caption chooseText{fields, "chooseText", Text::resultsChoose};
    /// A tab with its state, for assistive technology.
    Derived<std::string> departingLabel{
        fields, "departingLabel", [this] { return tell(Text::resultsDeparting, flightListVM.flight); }};
    Derived<std::string> returningLabel{
        fields, "returningLabel", [this] { return tell(Text::resultsReturning, flightListVM.returnFlight); }};
    /// The parts of the total, once it has two.
    Derived<std::string> departurePart{
        fields, "departurePart", [this] { return part(Text::resultsDeparturePart, flightListVM.flight); }};
    Derived<std::string> returnPart{
        fields, "returnPart", [this] { return part(Text::resultsReturnPart, flightListVM.returnFlight); }};
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
    /// The offers of the open tab, or of the one list, and those that its filter left.
    struct Side {
        const Field<OneWayOffers>& all;
        const Field<OneWayOffers>& filtered;
        const std::shared_ptr<OneWayFlightListView>& list;
    };
    Side side() const;
    std::shared_ptr<OneWayFlightListView> makeList(const Field<OneWayOffers>& shown,
                                                   const OfferSelection& selection, Text title);
    using Choice = std::optional<AnyFlight>;
    static std::string timeOf(const Choice& chosen);
    static std::string priceOf(const Choice& chosen);
    static std::string tell(Text tab, const Choice& chosen);
    /// `words` with the price of one of the two chosen offers; empty while there are not two.
    std::string part(Text words, const Choice& chosen) const;
    OfferSelection departureSelection();
    OfferSelection returnSelection();
    void tapReturnTab();
    void clearSelection();

    FlightSearchOneWayProvider flightSearchOneWayProvider_;
    FlightSearchRoundTripProvider flightSearchRoundTripProvider_;
    /// The return list chooses without a word to the Continue button, which the departure offer shows.
    Fields unkeyed_;
    Published<bool> noContinueButton_{unkeyed_, "showContinueButton"};
    std::shared_ptr<OneWayFlightListView> oneWayList_ = makeList(
        flightListVM.filteredOnewayFlights, selection(showDepartureFlightSegmant), Text::resultsDeparting);
    std::shared_ptr<OneWayFlightListView> departureList_ =
        makeList(flightListVM.filteredDepartureFlights, departureSelection(), Text::resultsDeparting);
    std::shared_ptr<OneWayFlightListView> returnList_ =
        makeList(flightListVM.filteredReturnFlights, returnSelection(), Text::resultsReturning);
};

} // namespace ombrivane
