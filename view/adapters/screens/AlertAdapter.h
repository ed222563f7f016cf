// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "parts/AlertView.h"

namespace ombrivane::view {

/// What pages read of `AlertView`.
class AlertAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AlertAdapter, ScreenAdapter, AlertView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_INTENT(button, core().button)
};

} // namespace ombrivane::view
