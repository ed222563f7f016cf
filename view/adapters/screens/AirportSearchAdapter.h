// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "search/AirportSearch.h"

namespace ombrivane::view {

/// What pages read of `AirportSearch`.
class AirportSearchAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AirportSearchAdapter, ScreenAdapter, AirportSearch)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_TEXT(answered, core().answered)
    OMBRIVANE_FLAG(showsHeading, core().showsHeading)
    OMBRIVANE_TEXT(nothingText, core().nothingText)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(placeholder, core().placeholder)
    OMBRIVANE_TEXT(heading, core().heading)
    OMBRIVANE_TEXT(typed, core().text)
    OMBRIVANE_ROWS(rows, core().rows)
    OMBRIVANE_INPUT(type, core().type)
    OMBRIVANE_INTENT(close, core().close)
};

} // namespace ombrivane::view
