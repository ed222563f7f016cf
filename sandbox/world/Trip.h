// What a customer books: one offer, or a domestic pair of them.
#pragma once

#include "sandbox/world/Offers.h"

#include <optional>
#include <string>

namespace ombrivane::sandbox {

struct Trip {
    std::string type; ///< "oneway", "round" or "round_special"
    Offer offer;
    std::optional<Offer> special;   ///< the way back of a "round_special"
    std::optional<int> farePercent; ///< by how much it costs more than was offered; none: as it comes

    [[nodiscard]] const Journey& outbound() const { return offer.outbound; }

    /// Null for one way.
    [[nodiscard]] const Journey* back() const {
        if (special) return &special->outbound;
        return offer.back ? &*offer.back : nullptr;
    }

    /// The fare of the offer or offers as of now.
    [[nodiscard]] FareTotals fare() const {
        if (farePercent) {
            const FareTotals offered = special ? offer.fare.totals + special->fare.totals : offer.fare.totals;
            return offered.raised(*farePercent);
        }
        return special ? offer.presentFare() + special->presentFare() : offer.presentFare();
    }
};

} // namespace ombrivane::sandbox
