#include "results/FlightListView.h"

#include "base/WholeNumber.h"
#include "results/FilterBottomSheetView.h"

namespace ombrivane {
namespace {

constexpr Text insufficientBalance = Text::resultsInsufficientBalance;

} // namespace

FlightListView::FlightListView(SearchRequest searchRequest, CompletionCallback completionCallback) :
    FlightListView(std::move(searchRequest), std::make_shared<FlightListViewModel>(),
                   std::move(completionCallback)) {}

FlightListView::FlightListView(SearchRequest searchRequest,
                               const std::shared_ptr<FlightListViewModel>& viewModel,
                               CompletionCallback completionCallback) :
    ResultsScreen("FlightListView", "flightListVM", std::move(searchRequest), viewModel, insufficientBalance,
                  std::move(completionCallback)),
    flightListVM(*viewModel) {}

OfferListBindings FlightListView::listBindings() {
    return {flightListVM.isLoading, flightListVM.scrollToTop, selection(showSegmant), [this] {
                return travellers();
            }};
}

void FlightListView::sendSearch(const FlightQuery& query, bool roundTrip) {
    if (roundTrip) {
        return flightSearchRoundTripProvider_.searchFlights(
            query, answered<RoundTripOffers>([this](RoundTripOffers offers) {
                sortByTotalCost(offers);
                flightListVM.roundtripFlights = offers;
                flightListVM.filteredRoundtripFlights = std::move(offers);
            }));
    }
    flightSearchOneWayProvider_.searchFlights(query, answered<OneWayOffers>([this](OneWayOffers offers) {
                                                  sortByTotalCost(offers);
                                                  flightListVM.onewayFlights = offers;
                                                  flightListVM.filteredOnewayFlights = std::move(offers);
                                              }));
}

std::shared_ptr<Screen> FlightListView::list() const {
    if (flightListVM.hasReturnDate) return roundTripList_;
    return oneWayList_;
}

bool FlightListView::listIsEmpty() const {
    return flightListVM.hasReturnDate ? flightListVM.filteredRoundtripFlights->empty()
                                      : flightListVM.filteredOnewayFlights->empty();
}

bool FlightListView::canBeFiltered() const {
    return flightListVM.hasReturnDate ? !flightListVM.roundtripFlights->empty()
                                      : !flightListVM.onewayFlights->empty();
}

bool FlightListView::isNarrowed() const {
    return flightListVM.hasReturnDate
               ? flightListVM.filteredRoundtripFlights->size() < flightListVM.roundtripFlights->size()
               : flightListVM.filteredOnewayFlights->size() < flightListVM.onewayFlights->size();
}

void FlightListView::clearSelection() {
    flightListVM.showContinueButton = false;
    selection(showSegmant).clear();
}

std::shared_ptr<Screen> FlightListView::makeFilter() {
    const auto hold = weak_from_this();
    return std::make_shared<FilterBottomSheetView>(FilterBindings{flightListVM.onewayFlights,
                                                                  &flightListVM.roundtripFlights,
                                                                  flightListVM.filteredOnewayFlights,
                                                                  &flightListVM.filteredRoundtripFlights,
                                                                  flightListVM.selectedId,
                                                                  flightListVM.price,
                                                                  flightListVM.time},
                                                   [this, hold] {
                                                       if (hold.lock()) clearSelection();
                                                   });
}

std::optional<std::int64_t> FlightListView::totalCost() const {
    const auto& flight = flightListVM.flight.get();
    if (!flight) return std::nullopt;
    return flightListVM.hasReturnDate ? flight->roundTrip().fareInformation.totalCost
                                      : flight->oneWay().fareInformation.totalCost;
}

std::optional<std::string> FlightListView::totalCurrency() const {
    const auto& flight = flightListVM.flight.get();
    return flight ? std::optional(flight->currency()) : std::nullopt;
}

void FlightListView::proceed() {
    const auto cost = totalCost();
    if (cost && exceedsBalance(*cost, AppState::shared().walletBalance))
        return refuse(insufficientBalance, balanceText(*cost));
    showRules();
}

} // namespace ombrivane
