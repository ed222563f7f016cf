// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "search/NationalityBottomSheetView.h"

namespace ombrivane::view {

/// What pages read of `NationalityRow`.
class NationalityRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NationalityRowAdapter, ScreenAdapter, NationalityRow)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
