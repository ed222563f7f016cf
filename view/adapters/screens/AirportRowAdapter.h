// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "search/AirportSearch.h"

namespace ombrivane::view {

/// What pages read of `FlightListItemView`.
class AirportRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AirportRowAdapter, ScreenAdapter, FlightListItemView)
    OMBRIVANE_TEXT(code, core().code)
    OMBRIVANE_TEXT(name, core().name_)
    OMBRIVANE_TEXT(mainText, core().mainText)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
