#include "search/TravellerBottomSheetView.h"

#include "parts/CustomRadioButtonFieldView.h"
#include "search/TravellerIncDecButtonView.h"

namespace ombrivane {

std::shared_ptr<Screen> TravellerBottomSheetView::makeStepper(TravellerKind kind) {
    return std::make_shared<TravellerIncDecButtonView>(kind, adult, child, infant);
}

std::shared_ptr<Screen> TravellerBottomSheetView::makeCabin(const CabinChoice& choice) {
    return std::make_shared<CustomRadioButtonFieldView>(
        choice.id,
        [&choice] { return said(choice.label); },
        [this, &choice] { return cabinClass.get() == choice.id; },
        [this, &choice] { cabinClass = choice.id; });
}

void TravellerBottomSheetView::finish() {
    const auto counts = TravellerCounts::from(adult, child, infant);
    travellerTextField = std::to_string(counts.total()) + ", " + cabinClass.get();
    dismiss();
}

} // namespace ombrivane
