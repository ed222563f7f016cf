#include "screens/OneWayView.h"

#include "services/ItineraryType.h"

namespace ombrivane {
namespace {

constexpr SearchFormTraits traits{
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
    SearchForm(traits, std::move(completionCallback)) {}

} // namespace ombrivane
