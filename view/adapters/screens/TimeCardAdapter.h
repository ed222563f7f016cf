// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/FilterBottomSheetView.h"

namespace ombrivane::view {

/// What pages read of `TimeCardView`.
class TimeCardAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TimeCardAdapter, ScreenAdapter, TimeCardView)
    OMBRIVANE_TEXT(iconName, core().iconName)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(subTitle, core().subTitle)
    OMBRIVANE_FLAG(isSelected, core().isSelected)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
