// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "search/TravellerBottomSheetView.h"

namespace ombrivane::view {

/// What pages read of `TravellerBottomSheetView`.
class TravellerSheetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TravellerSheetAdapter, ScreenAdapter, TravellerBottomSheetView)
    OMBRIVANE_TEXT(heading, core().heading)
    OMBRIVANE_TEXT(subHeading, core().subHeading)
    OMBRIVANE_TEXT(cabinHeading, core().cabinHeading)
    OMBRIVANE_TEXT(doneText, core().doneText)
    OMBRIVANE_ROWS(steppers, core().steppers)
    OMBRIVANE_ROWS(cabins, core().cabins)
    OMBRIVANE_INTENT(done, core().done)
};

} // namespace ombrivane::view
