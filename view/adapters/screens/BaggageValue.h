// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "booking/BaggageInformationView.h"

namespace ombrivane::view {

/// What pages read of `BaggageBlock`.
class BaggageValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(BaggageValue, BaggageBlock)
    OMBRIVANE_LINE(route)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(checkIn)
};

} // namespace ombrivane::view
