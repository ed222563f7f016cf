// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "search/TravellerIncDecButtonView.h"

namespace ombrivane::view {

/// What pages read of `TravellerIncDecButtonView`.
class StepperAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(StepperAdapter, ScreenAdapter, TravellerIncDecButtonView)
    OMBRIVANE_TEXT(category, core().category)
    OMBRIVANE_TEXT(categoryDetail, core().categoryDetail)
    OMBRIVANE_TEXT(number, core().number)
    OMBRIVANE_FLAG(mayIncrement, core().mayIncrement)
    OMBRIVANE_FLAG(mayDecrement, core().mayDecrement)
    OMBRIVANE_INTENT(increment, core().increment)
    OMBRIVANE_INTENT(decrement, core().decrement)
};

} // namespace ombrivane::view
