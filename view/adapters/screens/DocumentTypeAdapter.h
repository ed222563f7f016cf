// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "booking/TravellerInformationView.h"

namespace ombrivane::view {

/// What pages read of `DocumentTypeTile`.
class DocumentTypeAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(DocumentTypeAdapter, ScreenAdapter, DocumentTypeTile)
    OMBRIVANE_TEXT(label, core().label)
    OMBRIVANE_FLAG(isSelected, core().isSelected)
    OMBRIVANE_INTENT(tap, core().tap)
};

} // namespace ombrivane::view
