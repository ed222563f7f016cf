#include "results/OfferSelection.h"

namespace ombrivane {

void OfferSelection::tap(const AnyFlight& offer) {
    if (displayedSegmentId.get() == offer.id()) {
        displayedSegmentId.set(Uuid::random());
        showSegmant.set(false);
        selectedFlightSegmentId.set(Uuid::random());
        flightSelected.set(false);
        selectedFlight.set(std::nullopt);
        showContinueButton.set(false);
        return;
    }
    displayedSegmentId.set(offer.id());
    showSegmant.set(true);
    selectedFlightSegmentId.set(offer.id());
    flightSelected.set(true);
    selectedFlight.set(offer);
    showContinueButton.set(true);
}

void OfferSelection::clear() {
    selectedFlightSegmentId.set(Uuid::random());
    displayedSegmentId.set(Uuid::random());
    flightSelected.set(false);
    selectedFlight.set(std::nullopt);
    showSegmant.set(false);
}

} // namespace ombrivane
