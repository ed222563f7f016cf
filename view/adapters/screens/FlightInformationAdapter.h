// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "adapters/screens/JourneyValue.h"
#include "booking/FlightInformationView.h"

namespace ombrivane::view {

/// What pages read of `FlightInformationView`.
class FlightInformationAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FlightInformationAdapter, ScreenAdapter, FlightInformationView)
    OMBRIVANE_VALUES(JourneyValue, journeys, core().journeys)
    OMBRIVANE_TEXT(passengerLine, core().passengerLine)
    OMBRIVANE_TEXT(detailsText, core().detailsText)
    OMBRIVANE_INTENT(viewDetails, core().viewDetails)
    OMBRIVANE_ENABLED(viewDetails, core().viewDetails)
};

} // namespace ombrivane::view
