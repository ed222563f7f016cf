#include "search/OneWayView.h"

#include "services/ItineraryType.h"

namespace ombrivane {
namespace {

constexpr SearchFormTraits oneWayTraits{
    .name = "OneWayView",
    .modelKey = "oneWayVM",
    .itineraryType = itineraryType::oneway,
    .hasReturnDate = false,
    .originActive = &AppState::onewayOriginRootViewActive,
    .destinationActive = &AppState::onewayDestinationRootViewActive,
    .searchActive = &AppState::onewaySearchRootViewActive,
};

} // namespace

OneWayView::OneWayView(CompletionCallback completionCallback) :
    SearchForm(oneWayTraits, std::move(completionCallback)) {}

} // namespace ombrivane
