#pragma once

#include "records/Wire.h"

#include <string>

namespace ombrivane {

/// The allowances of one journey, shown as they come.
struct FlightAvailabilityBaggageDetails {
    std::string cabin;
    std::string baggage;

    bool operator==(const FlightAvailabilityBaggageDetails&) const = default;

    static constexpr auto wire = fields(field("cabin", &FlightAvailabilityBaggageDetails::cabin),
                                        field("baggage", &FlightAvailabilityBaggageDetails::baggage));
};

using RTBaggage = FlightAvailabilityBaggageDetails;

/// One allowance per direction.
struct RTBaggageDetails {
    RTBaggage outbound;
    RTBaggage baggageDetailsReturn;

    bool operator==(const RTBaggageDetails&) const = default;

    static constexpr auto wire = fields(field("outbound", &RTBaggageDetails::outbound),
                                        field("return", &RTBaggageDetails::baggageDetailsReturn));
};

} // namespace ombrivane
