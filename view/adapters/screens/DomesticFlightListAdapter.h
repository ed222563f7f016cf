// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ResultsAdapter.h"
#include "results/DomesticFlightListView.h"

namespace ombrivane::view {

/// What pages read of `DomesticFlightListView`.
class DomesticFlightListAdapter : public ombrivane::view::ResultsAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(DomesticFlightListAdapter, ResultsAdapter, DomesticFlightListView)
    OMBRIVANE_FLAG(showsTabs, core().showsTabs)
    OMBRIVANE_TEXT(departingTitle, core().departingTitle)
    OMBRIVANE_TEXT(returningTitle, core().returningTitle)
    OMBRIVANE_TEXT(departingTime, core().departingTime)
    OMBRIVANE_TEXT(departingPrice, core().departingPrice)
    OMBRIVANE_TEXT(returningTime, core().returningTime)
    OMBRIVANE_TEXT(returningPrice, core().returningPrice)
    OMBRIVANE_TEXT(chooseText, core().chooseText)
    OMBRIVANE_TEXT(departingLabel, core().departingLabel)
    OMBRIVANE_TEXT(returningLabel, core().returningLabel)
    OMBRIVANE_TEXT(departurePart, core().departurePart)
    OMBRIVANE_TEXT(returnPart, core().returnPart)
    OMBRIVANE_INTENT(tapDepartingFlights, core().tapDepartingFlights)
    OMBRIVANE_INTENT(tapReturningFlights, core().tapReturningFlights)
    OMBRIVANE_FIELD(int, tab, core().flightListVM.index)
};

} // namespace ombrivane::view
