#pragma once

#include "results/FlightListViewModel.h"
#include "results/ResultsScreen.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/FlightSearchRoundTripProvider.h"

namespace ombrivane {

/// The international result list: one list, of one-way or of round-trip offers.
class FlightListView final : public ResultsScreen {
public:
    FlightListView(SearchRequest request, CompletionCallback completionCallback);

    FlightListViewModel& flightListVM;
    Published<bool> showSegmant{fields, "showSegmant"};

protected:
    void sendSearch(const FlightQuery& query, bool roundTrip) override;
    std::shared_ptr<Screen> list() const override;
    bool listIsEmpty() const override;
    bool canBeFiltered() const override;
    bool isNarrowed() const override;
    std::shared_ptr<Screen> makeFilter() override;
    std::optional<std::int64_t> totalCost() const override;
    std::optional<std::string> totalCurrency() const override;
    void proceed() override;

private:
    FlightListView(SearchRequest request, const std::shared_ptr<FlightListViewModel>& model,
                   CompletionCallback completionCallback);
    OfferListBindings listBindings();
    void clearSelection();

    FlightSearchOneWayProvider flightSearchOneWayProvider_;
    FlightSearchRoundTripProvider flightSearchRoundTripProvider_;
    /// Without a strip of cards, which only a round trip has here.
    std::shared_ptr<OneWayFlightListView> oneWayList_ = std::make_shared<OneWayFlightListView>(
        flightListVM.filteredOnewayFlights, listBindings(), Text::resultsDeparting, false);
    std::shared_ptr<RoundTripFlightListView> roundTripList_ = std::make_shared<RoundTripFlightListView>(
        flightListVM.filteredRoundtripFlights, listBindings(), Text::resultsDeparting, true);
};

} // namespace ombrivane
