#include "results/DomesticFlightListView.h"

#include "base/WholeNumber.h"
#include "offers/OfferFormat.h"
#include "results/FilterBottomSheetView.h"

namespace ombrivane {
namespace {

constexpr Text insufficientFund = Text::resultsInsufficientFund;

} // namespace

DomesticFlightListView::DomesticFlightListView(SearchRequest searchRequest,
                                               CompletionCallback completionCallback) :
    DomesticFlightListView(std::move(searchRequest), std::make_shared<DomesticFlightListViewModel>(),
                           std::move(completionCallback)) {}

DomesticFlightListView::DomesticFlightListView(SearchRequest searchRequest,
                                               const std::shared_ptr<DomesticFlightListViewModel>& viewModel,
                                               CompletionCallback completionCallback) :
    ResultsScreen("DomesticFlightListView", "flightListVM", std::move(searchRequest), viewModel,
                  insufficientFund, std::move(completionCallback)),
    flightListVM(*viewModel) {}

std::shared_ptr<OneWayFlightListView> DomesticFlightListView::makeList(const Field<OneWayOffers>& shown,
                                                                       const OfferSelection& selection,
                                                                       Text title) {
    return std::make_shared<OneWayFlightListView>(
        shown,
        OfferListBindings{
            flightListVM.isLoading, flightListVM.scrollToTop, selection, [this] { return travellers(); }},
        title,
        true);
}

std::string DomesticFlightListView::timeOf(const Choice& chosen) {
    return chosen ? chosen->oneWay().flightSummary.timeOfDeparture : "";
}

std::string DomesticFlightListView::priceOf(const Choice& chosen) {
    return chosen ? OfferFormat::price(chosen->currency(), chosen->totalCost()) : "";
}

std::string DomesticFlightListView::tell(Text tab, const Choice& chosen) {
    if (!chosen)
        return said(Text::fieldWithValue, {{"field", said(tab)}, {"value", said(Text::resultsChoose)}});
    return said(Text::resultsTabChosen,
                {{"tab", said(tab)}, {"time", timeOf(chosen)}, {"price", priceOf(chosen)}});
}

std::string DomesticFlightListView::part(Text words, const Choice& chosen) const {
    if (!flightListVM.hasReturnDate || !flightListVM.flight.get() || !flightListVM.returnFlight.get())
        return "";
    return said(words, {{"price", priceOf(chosen)}});
}

OfferSelection DomesticFlightListView::departureSelection() {
    return {flightListVM.flight,
            flightListVM.showContinueButton,
            flightListVM.departureFlightsDisplayedSegmentId,
            flightListVM.departureFlightsSelectedFlightSegmentId,
            flightListVM.departureFlightSelected,
            showDepartureFlightSegmant};
}

OfferSelection DomesticFlightListView::returnSelection() {
    return {flightListVM.returnFlight,
            noContinueButton_,
            flightListVM.returnFlightsDisplayedSegmentId,
            flightListVM.returnFlightsSelectedFlightSegmentId,
            flightListVM.returnFlightSelected,
            showReturnFlightSegmant};
}

void DomesticFlightListView::clearForSearch() {
    flightListVM.index = departureTab;
    flightListVM.returnFlight = std::nullopt;
}

void DomesticFlightListView::sendSearch(const FlightQuery& query, bool roundTrip) {
    if (roundTrip) {
        using Flights = FlightSearchRoundTripProvider::SpecialRoundFlights;
        return flightSearchRoundTripProvider_.searchSpecialRoundFlights(
            query, answered<Flights>([this](Flights flights) {
                sortByTotalCost(flights.departureFlights);
                flightListVM.departureFlights = flights.departureFlights;
                flightListVM.filteredDepartureFlights = std::move(flights.departureFlights);
                sortByTotalCost(flights.returnFlights);
                flightListVM.returnFlights = flights.returnFlights;
                flightListVM.filteredReturnFlights = std::move(flights.returnFlights);
            }));
    }
    flightSearchOneWayProvider_.searchFlights(query, answered<OneWayOffers>([this](OneWayOffers offers) {
                                                  sortByTotalCost(offers);
                                                  flightListVM.onewayFlights = offers;
                                                  flightListVM.filteredOnewayFlights = std::move(offers);
                                              }));
}

DomesticFlightListView::Side DomesticFlightListView::side() const {
    auto& model = flightListVM;
    if (!model.hasReturnDate) return {model.onewayFlights, model.filteredOnewayFlights, oneWayList_};
    if (model.index == departureTab)
        return {model.departureFlights, model.filteredDepartureFlights, departureList_};
    return {model.returnFlights, model.filteredReturnFlights, returnList_};
}

std::shared_ptr<Screen> DomesticFlightListView::list() const { return side().list; }

bool DomesticFlightListView::listIsEmpty() const { return side().filtered->empty(); }

bool DomesticFlightListView::canBeFiltered() const { return !side().all->empty(); }

bool DomesticFlightListView::isNarrowed() const {
    const Side shown = side();
    return shown.filtered->size() < shown.all->size();
}

void DomesticFlightListView::tapReturnTab() {
    if (!flightListVM.flight.get()) return refuse(Text::resultsSelectFlight);
    flightListVM.index = returnTab;
}

/// A filter takes the choice of its list; that of the departure list takes the return choice as well.
void DomesticFlightListView::clearSelection() {
    if (!flightListVM.hasReturnDate) {
        flightListVM.showContinueButton = false;
        return selection(showDepartureFlightSegmant).clear();
    }
    if (flightListVM.index == departureTab) {
        flightListVM.showContinueButton = false;
        departureSelection().clear();
    }
    returnSelection().clear();
}

std::shared_ptr<Screen> DomesticFlightListView::makeFilter() {
    const Side shown = side();
    const auto hold = weak_from_this();
    return std::make_shared<FilterBottomSheetView>(FilterBindings{shown.all,
                                                                  nullptr,
                                                                  shown.filtered,
                                                                  nullptr,
                                                                  flightListVM.selectedId,
                                                                  flightListVM.price,
                                                                  flightListVM.time},
                                                   [this, hold] {
                                                       if (hold.lock()) clearSelection();
                                                   });
}

std::optional<std::int64_t> DomesticFlightListView::totalCost() const {
    const auto& going = flightListVM.flight.get();
    if (!flightListVM.hasReturnDate) {
        return going ? std::optional(going->oneWay().fareInformation.totalCost) : std::nullopt;
    }
    const auto& coming = flightListVM.returnFlight.get();
    if (going && coming) {
        return sumOf(going->oneWay().fareInformation.totalCost, coming->oneWay().fareInformation.totalCost);
    }
    const auto& one = going ? going : coming;
    return one ? std::optional(one->oneWay().fareInformation.totalCost) : std::nullopt;
}

std::optional<std::string> DomesticFlightListView::totalCurrency() const {
    const auto& one = flightListVM.flight.get() ? flightListVM.flight.get() : flightListVM.returnFlight.get();
    return one ? std::optional(one->currency()) : std::nullopt;
}

void DomesticFlightListView::proceed() {
    const bool going = flightListVM.flight->has_value();
    const bool complete = !flightListVM.hasReturnDate || flightListVM.returnFlight->has_value();
    if (!going) return;
    if (!complete) {
        flightListVM.index = returnTab;
        return;
    }
    const std::int64_t cost = *totalCost();
    if (exceedsBalance(cost, AppState::shared().walletBalance))
        return refuse(insufficientFund, balanceText(cost));
    showRules();
}

} // namespace ombrivane
