// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "adapters/screens/LegValue.h"
#include "booking/JourneyCard.h"

namespace ombrivane::view {

/// What pages read of `JourneyCard`.
class JourneyCardProperties : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_VALUE(JourneyCardProperties, JourneyCard)
    OMBRIVANE_LINE(sectionTitle)
    OMBRIVANE_LINE(dateIcon)
    OMBRIVANE_LINE(route)
    OMBRIVANE_LINE(date)
    OMBRIVANE_LINE(time)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(stops)
    OMBRIVANE_LINES(LegValue, legs)
};

} // namespace ombrivane::view
