#pragma once

#include "records/Wire.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// What an availability was opened for.
struct AvailabilitySummary {
    std::string bookingReferenceID; ///< quoted by every later booking operation
    std::optional<std::string> flightAvailabilityToken;
    std::string tripType;
    std::string currency;
    std::int64_t numberAdult = 0;
    std::int64_t numberChild = 0;
    std::int64_t numberInfant = 0;

    bool operator==(const AvailabilitySummary&) const = default;

    static constexpr auto wire = fields(
        field("bookingReferenceID", &AvailabilitySummary::bookingReferenceID),
        field("flightAvailabilityToken", &AvailabilitySummary::flightAvailabilityToken),
        field("tripType", &AvailabilitySummary::tripType), field("currency", &AvailabilitySummary::currency),
        field("numberAdult", &AvailabilitySummary::numberAdult),
        field("numberChild", &AvailabilitySummary::numberChild),
        field("numberInfant", &AvailabilitySummary::numberInfant));
};

} // namespace ombrivane
