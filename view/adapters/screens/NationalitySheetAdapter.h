// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "search/NationalityBottomSheetView.h"

namespace ombrivane::view {

/// What pages read of `NationalityBottomSheetView`.
class NationalitySheetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NationalitySheetAdapter, ScreenAdapter, NationalityBottomSheetView)
    OMBRIVANE_TEXT(nationalityText, core().nationalityText)
    OMBRIVANE_TEXT(placeholder, core().placeholder)
    OMBRIVANE_ROWS(rows, core().rows)
    OMBRIVANE_INPUT(type, core().type)
};

} // namespace ombrivane::view
