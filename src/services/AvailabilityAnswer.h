#pragma once

#include "records/AvailabilitySummary.h"
#include "services/Envelope.h"

namespace ombrivane {

/// @throws DecodeError for a count of travellers that no booking has: a form is made for each of them
void checkTravellers(const AvailabilitySummary& summary);

/// The availability that an answer holds. @throws DecodeError
template <class Availability> Availability availabilityOf(const Envelope& envelope) {
    auto availability = envelope.record<Availability>();
    checkTravellers(availability.availabilitySummary);
    return availability;
}

} // namespace ombrivane
