// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/OfferItemView.h"

namespace ombrivane::view {

/// What pages read of `OfferItemView`.
class OfferProperties : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_SCREEN(OfferProperties, ScreenAdapter, OfferItemView)
    OMBRIVANE_FLAG(isPlaceholder, core().isPlaceholder)
    OMBRIVANE_TEXT(price, core().price)
    OMBRIVANE_TEXT(travellersText, core().travellersText)
    OMBRIVANE_FLAG(isChosen, core().isChosen)
    OMBRIVANE_FLAG(isUnfolded, core().isUnfolded)
    OMBRIVANE_TEXT(detailsText, core().detailsText)
    OMBRIVANE_INTENT(tap, core().tap)
    OMBRIVANE_ENABLED(tap, core().tap)
};

} // namespace ombrivane::view
