// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "booking/JourneyCard.h"

namespace ombrivane::view {

/// What pages read of `LegLines`.
class LegValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(LegValue, LegLines)
    OMBRIVANE_LINE(connection)
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrier)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(departureAirport)
    OMBRIVANE_LINE(departure)
    OMBRIVANE_LINE(arrivalAirport)
    OMBRIVANE_LINE(arrival)
};

} // namespace ombrivane::view
