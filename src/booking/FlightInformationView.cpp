#include "booking/FlightInformationView.h"

#include <algorithm>

namespace ombrivane {

std::string passengerSummary(const std::vector<UniquePassanger>& slots) {
    const auto piece = [&slots](const char* type, const char* before, const char* letter) {
        const auto count = std::count_if(
            slots.begin(), slots.end(), [type](const UniquePassanger& slot) { return slot.type == type; });
        return count < 1 ? std::string() : before + std::to_string(count) + letter;
    };
    return piece("Adult", "", " A") + piece("Child", " , ", " C") + piece("Infant", " , ", " I");
}

} // namespace ombrivane
