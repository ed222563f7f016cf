// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "adapters/screens/LegValue.h"
#include "booking/JourneyCard.h"

namespace ombrivane::view {

/// What pages read of `JourneyCard`.
class JourneyValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_VALUE(JourneyValue, JourneyCard)
    OMBRIVANE_LINE(sectionTitle)
    OMBRIVANE_LINE(dateIcon)
    OMBRIVANE_LINE(originCity)
    OMBRIVANE_LINE(destinationCity)
    OMBRIVANE_LINE(route)
    OMBRIVANE_LINE(date)
    OMBRIVANE_LINE(time)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(stops)
    OMBRIVANE_TEXTS(carrierLogos)
    OMBRIVANE_LINES(LegValue, legs)
};

} // namespace ombrivane::view
