#pragma once

#include "records/Scalars.h"
#include "records/Wire.h"

namespace ombrivane {

/// The allowances of a one-way offer.
struct BaggageDetails {
    Weight cabin;
    Weight baggage;

    bool operator==(const BaggageDetails&) const = default;

    static constexpr auto wire =
        fields(field("cabin", &BaggageDetails::cabin), field("baggage", &BaggageDetails::baggage));
};

/// The allowances of one direction of a round trip.
using Baggage = BaggageDetails;

/// One allowance per direction.
struct RoundTripBaggageDetails {
    Baggage outbound;
    Baggage return_;

    bool operator==(const RoundTripBaggageDetails&) const = default;

    static constexpr auto wire = fields(field("outbound", &RoundTripBaggageDetails::outbound),
                                        field("return", &RoundTripBaggageDetails::return_));
};

} // namespace ombrivane
