// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "adapters/screens/TicketLineValue.h"
#include "booking/TicketTravellerInfo.h"

namespace ombrivane::view {

/// What pages read of `TicketPassengerBlock`.
class TicketPassengerValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(TicketPassengerValue, TicketPassengerBlock)
    OMBRIVANE_LINE(title)
    OMBRIVANE_LINE(name)
    OMBRIVANE_LINES(TicketLineValue, lines)
};

} // namespace ombrivane::view
