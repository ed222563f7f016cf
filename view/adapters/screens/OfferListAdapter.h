// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "results/OfferListView.h"

namespace ombrivane::view {

/// What pages read of `OfferList`.
class OfferListAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(OfferListAdapter, ScreenAdapter, OfferList)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_FLAG(scrollToTop, core().scrollToTop)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(scrollToId, core().scrollToId)
    OMBRIVANE_ROWS(rows, core().rows)
    OMBRIVANE_ROWS(strip, core().strip)
    OMBRIVANE_INTENT(arrivedAtTop, core().arrivedAtTop)
};

} // namespace ombrivane::view
