// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "booking/OWPessangerContactDetailView.h"

namespace ombrivane::view {

/// What pages read of `ContactLine`.
class ContactLineAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(ContactLineAdapter, ScreenAdapter, ContactLine)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(detail, core().detail)
    OMBRIVANE_FLAG(isFilled, core().isFilled)
    OMBRIVANE_FLAG(isComplete, core().isComplete)
    OMBRIVANE_FLAG(isMarked, core().isMarked)
    OMBRIVANE_INTENT(tap, core().tap)
    OMBRIVANE_ENABLED(tap, core().tap)
};

} // namespace ombrivane::view
