#pragma once

#include "records/RawData.h"
#include "services/Body.h"

#include <optional>

namespace ombrivane {

/// Adds the service's own JSON of an offer under "itinerary", byte for byte, or null where it is absent or is
/// no object; the diagnostics say which. The request goes out in either case.
void addRawItinerary(Body& body, const std::optional<RawData>& rawData);

} // namespace ombrivane
