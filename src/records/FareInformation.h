#pragma once

#include "records/Wire.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// The fare of an offer in whole units of its currency.
struct FareInformation {
    std::optional<std::int64_t> totalADT;
    std::optional<std::int64_t> totalChd;
    std::optional<std::int64_t> totalInf;
    std::int64_t totalCost = 0; ///< sort key of every result list, and what the wallet pays
    std::optional<std::string> fareToken;
    std::optional<double> cashBack;

    bool operator==(const FareInformation&) const = default;

    static constexpr auto wire = fields(
        field("total_adt", &FareInformation::totalADT), field("total_chd", &FareInformation::totalChd),
        field("total_inf", &FareInformation::totalInf), field("total_cost", &FareInformation::totalCost),
        field("fare_token", &FareInformation::fareToken), field("cashBack", &FareInformation::cashBack));
};

} // namespace ombrivane
