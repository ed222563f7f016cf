// The upload of travel documents for a reservation.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/service/Bookings.h"
#include "sandbox/wire/Multipart.h"

#include <string>
#include <vector>

namespace ombrivane::sandbox {

/// The form is `user_type`, `bookingReferenceID`, and for each passenger of the reservation, in order,
/// `documentType[ID]` and a PNG picture `documentImage[ID]`, which may be left out where no documents are
/// required. Returns the `data` of the answer. Throws `Refusal`.
Json acceptDocuments(const std::vector<FormPart>& form, const std::string& userType, Bookings& bookings);

} // namespace ombrivane::sandbox
