#pragma once

#include "base/Uuid.h"
#include "keyed/Keyed.h"
#include "records/AvailabilitySummary.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One passenger slot of a booking. It never leaves the process.
struct UniquePassanger {
    Uuid id = Uuid::random();
    int count = 0;    ///< running over the whole list, from 1
    std::string type; ///< "Adult", "Child" or "Infant"

    bool operator==(const UniquePassanger&) const = default;
};

/// The slots of a booking: adults, children, infants. Without an availability there are none. A list that is
/// built again has other identities.
std::vector<UniquePassanger> passengerSlots(const std::optional<AvailabilitySummary>& summary);

template <> struct Keyed<UniquePassanger> {
    static Json toJson(const UniquePassanger& slot) {
        return Json{{"id", slot.id.text()}, {"count", slot.count}, {"type", slot.type}};
    }
    static UniquePassanger fromJson(const Json& /*json*/) {
        throw KeyedError("a passenger slot cannot be set");
    }
};

} // namespace ombrivane

template <> struct std::hash<ombrivane::UniquePassanger> {
    std::size_t operator()(const ombrivane::UniquePassanger& slot) const noexcept {
        return std::hash<ombrivane::Uuid>{}(slot.id);
    }
};
