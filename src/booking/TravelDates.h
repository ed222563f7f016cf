#pragma once

#include "dates/Day.h"
#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"

namespace ombrivane {

/// The first and the last day of travel: of one way the same day twice. They limit what a traveller form
/// takes.
struct TravelDates {
    Day first;
    Day last;
};

/// Of an availability, which names days or is refused when it arrives.
TravelDates travelDatesOf(const FlightsSummary& flights);
TravelDates travelDatesOf(const RTFlightsSummary& flights);

} // namespace ombrivane
