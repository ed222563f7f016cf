#include "booking/PassengerType.h"

#include "words/Words.h"

#include <algorithm>
#include <array>

namespace ombrivane {
namespace {

struct Kind {
    PassengerType type;
    const char* name;
    const char* code;
    int oldest;
    Text label;
};

constexpr std::array<Kind, 3> kinds{{
    {PassengerType::adult, "Adult", "ADT", 100, Text::passengerAdult},
    {PassengerType::child, "Child", "CHD", 12, Text::passengerChild},
    {PassengerType::infant, "Infant", "INF", 2, Text::passengerInfant},
}};

const Kind* kindOf(const std::string& name) {
    const auto* const found =
        std::find_if(kinds.begin(), kinds.end(), [&name](const Kind& kind) { return name == kind.name; });
    return found == kinds.end() ? nullptr : found;
}

} // namespace

std::optional<PassengerType> passengerTypeOf(const std::string& name) {
    const Kind* kind = kindOf(name);
    return kind != nullptr ? std::optional(kind->type) : std::nullopt;
}

std::string passengerTypeCode(const std::string& name) {
    const Kind* kind = kindOf(name);
    return kind != nullptr ? kind->code : "";
}

int oldestAge(const std::string& name) {
    const Kind* kind = kindOf(name);
    return (kind != nullptr ? *kind : kinds.front()).oldest;
}

std::string passengerTypeLabel(const std::string& name) {
    const Kind* kind = kindOf(name);
    return kind != nullptr ? said(kind->label) : name;
}

} // namespace ombrivane
