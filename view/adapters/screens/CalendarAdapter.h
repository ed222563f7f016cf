// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "dates/TravelCalendar.h"

namespace ombrivane::view {

/// What pages read of `TravelCalendar`.
class CalendarAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(CalendarAdapter, ScreenAdapter, TravelCalendar)
    OMBRIVANE_FIELD(int, scrollToIndex, core().scrollToIndex)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_FIELD(QStringList, dayNames, core().dayNames)
    OMBRIVANE_TEXT(chosenText, core().chosenText)
    OMBRIVANE_ROWS(months, core().months)
    OMBRIVANE_INPUT(tapDay, core().tapDay)
    OMBRIVANE_INTENT(done, core().done)
    OMBRIVANE_INTENT(close, core().close)
};

} // namespace ombrivane::view
