// A flight search as the service understands it.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/world/Airports.h"
#include "sandbox/world/Dates.h"

#include <optional>
#include <string>

namespace ombrivane::sandbox {

struct SearchRequest {
    std::string tripType; ///< "oneway" or "round"
    const Airport* from = nullptr;
    const Airport* to = nullptr;
    Day departure;
    std::optional<Day> comingBack; ///< of a round trip
    std::string nationality;
    int adults = 1;
    int children = 0;
    int infants = 0;
    std::string cabin; ///< "M", "W", "C", "F", or empty for every cabin

    [[nodiscard]] bool isRound() const { return comingBack.has_value(); }
    [[nodiscard]] bool isDomestic() const { return from->isDomestic() && to->isDomestic(); }

    /// The same text for the same search and no other.
    [[nodiscard]] std::string subject() const;
};

/// Reads the body of a search: 10 keys one way, 11 for a round trip. Throws `Refusal`.
SearchRequest parseSearch(const Json& body, Instant now);

} // namespace ombrivane::sandbox
