#pragma once

#include "records/AvailabilitySummary.h"
#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"
#include "services/Envelope.h"

namespace ombrivane {

/// @throws DecodeError for a count of travellers that no booking has: a form is made for each of them
void checkTravellers(const AvailabilitySummary& summary);

/// @throws DecodeError for a day of travel that is none: a traveller form takes its limits from it
void checkTravelDays(const FlightsSummary& flights);
void checkTravelDays(const RTFlightsSummary& flights);

/// The availability that an answer holds. @throws DecodeError
template <class Availability> Availability availabilityOf(const Envelope& envelope) {
    auto availability = envelope.record<Availability>();
    checkTravellers(availability.availabilitySummary);
    checkTravelDays(availability.flightsSummary);
    return availability;
}

} // namespace ombrivane
