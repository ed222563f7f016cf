// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "dates/TravelCalendar.h"

namespace ombrivane::view {

/// What pages read of `TravelCalendar::Month`.
class MonthProperties : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_SCREEN(MonthProperties, ScreenAdapter, TravelCalendar::Month)
    OMBRIVANE_TEXT(title, core().title)
};

} // namespace ombrivane::view
