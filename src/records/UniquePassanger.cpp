#include "records/UniquePassanger.h"

#include <utility>

namespace ombrivane {

std::vector<UniquePassanger> passengerSlots(const std::optional<AvailabilitySummary>& summary) {
    std::vector<UniquePassanger> slots;
    if (!summary) return slots;
    const std::pair<std::int64_t, const char*> kinds[] = {
        {summary->numberAdult, "Adult"}, {summary->numberChild, "Child"}, {summary->numberInfant, "Infant"}};
    for (const auto& [number, type] : kinds) {
        for (std::int64_t i = 0; i < number; ++i) {
            slots.push_back({Uuid::random(), static_cast<int>(slots.size()) + 1, type});
        }
    }
    return slots;
}

} // namespace ombrivane
