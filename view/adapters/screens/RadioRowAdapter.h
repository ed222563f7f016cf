// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "parts/CustomRadioButtonFieldView.h"

namespace ombrivane::view {

/// What pages read of `CustomRadioButtonFieldView`.
class RadioRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(RadioRowAdapter, ScreenAdapter, CustomRadioButtonFieldView)
    OMBRIVANE_TEXT(label, core().label)
    OMBRIVANE_FLAG(isMarked, core().isMarked)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
