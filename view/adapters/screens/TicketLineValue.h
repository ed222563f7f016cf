// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "booking/TicketTravellerInfo.h"

namespace ombrivane::view {

/// What pages read of `TicketTravellerInfo`.
class TicketLineValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(TicketLineValue, TicketTravellerInfo)
    OMBRIVANE_LINE(leftTitle)
    OMBRIVANE_LINE(leftSubTitle)
    OMBRIVANE_LINE(rightTitle)
    OMBRIVANE_LINE(rightSubTitle)
};

} // namespace ombrivane::view
