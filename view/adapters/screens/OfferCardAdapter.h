// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/OfferItemView.h"

namespace ombrivane::view {

/// What pages read of `OfferCardView`.
class OfferCardAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(OfferCardAdapter, ScreenAdapter, OfferCardView)
    OMBRIVANE_TEXT(carrierLogo, core().carrierLogo)
    OMBRIVANE_TEXT(carrierName, core().carrierName)
    OMBRIVANE_TEXT(price, core().price)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
