// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/Value.h"
#include "adapters/screens/SegmentAdapter.h"
#include "offers/OfferLines.h"

namespace ombrivane::view {

/// What pages read of `JourneyLines`.
class JourneyProperties : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_VALUE(JourneyProperties, JourneyLines)
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrierName)
    OMBRIVANE_LINE(refundability)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(departureLocation)
    OMBRIVANE_LINE(departureTime)
    OMBRIVANE_LINE(departureDate)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(lineImage)
    OMBRIVANE_LINE(arrivalLocation)
    OMBRIVANE_LINE(arrivalTime)
    OMBRIVANE_LINE(arrivalDate)
    OMBRIVANE_LINE(arrivalDays)
    OMBRIVANE_LINE(cabinBaggage)
    OMBRIVANE_LINE(checkInBaggage)
    OMBRIVANE_LINE(departureCountry)
    OMBRIVANE_LINE(arrivalCountry)
    OMBRIVANE_LINES(SegmentAdapter, segments)
};

} // namespace ombrivane::view
