#pragma once

#include "records/Wire.h"

#include <cstdint>
#include <optional>

namespace ombrivane {

/// Fare totals by passenger type in whole units of the currency.
struct PricedFare {
    std::int64_t totalADT = 0;
    std::int64_t totalChd = 0;
    std::int64_t totalInf = 0;
    std::int64_t totalCost = 0; ///< what the customer pays
    std::optional<double> cashBack;

    bool operator==(const PricedFare&) const = default;

    static constexpr auto wire =
        fields(field("total_adt", &PricedFare::totalADT), field("total_chd", &PricedFare::totalChd),
               field("total_inf", &PricedFare::totalInf), field("total_cost", &PricedFare::totalCost),
               field("cashBack", &PricedFare::cashBack));
};

using FlightAvailabilityFareInformation = PricedFare;
using RTFareInformation = PricedFare;
using FlightBookingFareInformation = PricedFare;

} // namespace ombrivane
