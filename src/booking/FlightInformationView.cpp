#include "booking/FlightInformationView.h"

#include "booking/PassengerType.h"

#include <algorithm>

namespace ombrivane {

std::string passengerSummary(const std::vector<UniquePassanger>& slots) {
    std::string line;
    const auto add = [&](PassengerType type, Text text) {
        const auto count = std::count_if(slots.begin(), slots.end(), [type](const UniquePassanger& slot) {
            return passengerTypeOf(slot.type) == type;
        });
        if (count < 1) return;
        if (type != PassengerType::adult) line += " , ";
        line += said(text, {{"count", count}});
    };
    add(PassengerType::adult, Text::sessionAdults);
    add(PassengerType::child, Text::sessionChildren);
    add(PassengerType::infant, Text::sessionInfants);
    return line;
}

} // namespace ombrivane
