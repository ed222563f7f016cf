// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "booking/TicketTravellerInfo.h"

namespace ombrivane::view {

/// What pages read of `TicketFlightBlock`.
class TicketFlightValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(TicketFlightValue, TicketFlightBlock)
    OMBRIVANE_LINE(title)
    OMBRIVANE_LINE(departureCity)
    OMBRIVANE_LINE(departureTime)
    OMBRIVANE_LINE(arrivalCity)
    OMBRIVANE_LINE(arrivalTime)
    OMBRIVANE_LINE(date)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(checkIn)
};

} // namespace ombrivane::view
