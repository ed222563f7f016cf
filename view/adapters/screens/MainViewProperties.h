// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "search/MainView.h"

namespace ombrivane::view {

/// What pages read of `MainView`.
class MainViewProperties : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_SCREEN(MainViewProperties, ScreenAdapter, MainView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_INTENT(back, core().back)
};

} // namespace ombrivane::view
