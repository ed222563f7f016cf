// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/EmptyStates.h"

namespace ombrivane::view {

/// What pages read of `NoInternetConnectionView`.
class NoInternetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NoInternetAdapter, ScreenAdapter, NoInternetConnectionView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_INTENT(button, core().button)
};

} // namespace ombrivane::view
