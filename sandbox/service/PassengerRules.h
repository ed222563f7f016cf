// What a reservation must say of its travellers and of the emergency contact.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/service/Bookings.h"
#include "sandbox/world/Dates.h"

#include <vector>

namespace ombrivane::sandbox {

/// Reads the array of passengers against the booking: keys, counts by type, names, ages on the last day of
/// travel, and documents. Throws `Refusal`. The travellers have no ids yet.
std::vector<Traveller> checkPassengers(const Json& passengers, const Booking& booking, Instant now);

/// Throws `Refusal`.
void checkEmergencyContact(const Json& contact);

} // namespace ombrivane::sandbox
