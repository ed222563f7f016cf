// Flights with numbers and times along a routing.
#pragma once

#include "sandbox/world/Dates.h"
#include "sandbox/world/Dice.h"
#include "sandbox/world/Routings.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

struct Leg {
    const Airport* from;
    const Airport* to;
    const Airline* carrier;
    const Airline* operatedBy; ///< differs from the carrier on a shared flight
    LocalTime departure;       ///< at the place of departure
    LocalTime arrival;         ///< at the place of arrival
    std::chrono::minutes flying;
    std::optional<std::chrono::minutes> connection; ///< to the next leg
    std::string flightNumber;
    std::string equipment;
};

struct Journey {
    std::vector<Leg> legs;

    [[nodiscard]] const Leg& first() const { return legs.front(); }
    [[nodiscard]] const Leg& last() const { return legs.back(); }

    /// From take-off to the last landing, changes included.
    [[nodiscard]] std::chrono::minutes elapsed() const;
};

/// A journey that leaves on that day, local time.
Journey makeJourney(const Routing& routing, Day day, Dice& dice);

} // namespace ombrivane::sandbox
