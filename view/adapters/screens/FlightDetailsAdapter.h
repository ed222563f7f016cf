// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "adapters/screens/JourneyValue.h"
#include "booking/FlightDetailsView.h"

namespace ombrivane::view {

/// What pages read of `FlightDetailsView`.
class FlightDetailsAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FlightDetailsAdapter, ScreenAdapter, FlightDetailsView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(originCity, core().originCity)
    OMBRIVANE_TEXT(destinationCity, core().destinationCity)
    OMBRIVANE_TEXT(routeImage, core().routeImage)
    OMBRIVANE_VALUES(JourneyValue, journeys, core().journeys)
    OMBRIVANE_INTENT(close, core().close)
};

} // namespace ombrivane::view
