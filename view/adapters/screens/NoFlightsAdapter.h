// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/EmptyStates.h"

namespace ombrivane::view {

/// What pages read of `NoFlightRecommendationsView`.
class NoFlightsAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NoFlightsAdapter, ScreenAdapter, NoFlightRecommendationsView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_INTENT(button, core().button)
};

} // namespace ombrivane::view
