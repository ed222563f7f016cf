// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "adapters/screens/BaggageValue.h"
#include "booking/BaggageInformationView.h"

namespace ombrivane::view {

/// What pages read of `BaggageInformationView`.
class BaggageAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(BaggageAdapter, ScreenAdapter, BaggageInformationView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(cabinLabel, core().cabinLabel)
    OMBRIVANE_TEXT(checkInLabel, core().checkInLabel)
    OMBRIVANE_VALUES(BaggageValue, blocks, core().blocks)
};

} // namespace ombrivane::view
