#include "search/RoundTripView.h"

#include "services/ItineraryType.h"

namespace ombrivane {
namespace {

constexpr SearchFormTraits roundTripTraits{
    .name = "RoundTripView",
    .modelKey = "roundTripVM",
    .itineraryType = itineraryType::round,
    .hasReturnDate = true,
    .originActive = &AppState::roundtripOriginRootViewActive,
    .destinationActive = &AppState::roundtripDestinationRootViewActive,
    .searchActive = &AppState::roundtripSearchRootViewActive,
};

} // namespace

RoundTripView::RoundTripView(CompletionCallback completionCallback) :
    SearchForm(roundTripTraits, std::move(completionCallback)) {}

} // namespace ombrivane
