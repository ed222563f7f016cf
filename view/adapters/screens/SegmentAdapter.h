// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "offers/OfferLines.h"

namespace ombrivane::view {

/// What pages read of `SegmentLines`.
class SegmentAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(SegmentAdapter, SegmentLines)
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrier)
    OMBRIVANE_LINE(operatedBy)
    OMBRIVANE_LINE(from)
    OMBRIVANE_LINE(departure)
    OMBRIVANE_LINE(to)
    OMBRIVANE_LINE(arrival)
    OMBRIVANE_LINE(connection)
};

} // namespace ombrivane::view
