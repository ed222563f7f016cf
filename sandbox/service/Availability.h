// The answer that opens a booking: the trip as priced now, and what the travellers must bring.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/control/Options.h"
#include "sandbox/world/Trip.h"

#include <string>
#include <vector>

namespace ombrivane::sandbox {

struct DocumentTerms {
    bool required = false;
    std::vector<std::string> allowed; ///< document type codes, the preferred one first
};

/// Passports abroad; at home a choice that never starts with the passport, since a form that opens on it
/// without documents being required could not be completed.
DocumentTerms documentTermsFor(const Trip& trip, DocumentsRule rule);

/// The `data` of the answer. `token` may be empty: then the key is left out.
Json availabilityJson(const Trip& trip, const std::string& reference, const std::string& token,
                      const DocumentTerms& documents, const std::string& address);

} // namespace ombrivane::sandbox
