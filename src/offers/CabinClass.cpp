#include "offers/CabinClass.h"

#include <array>
#include <utility>

namespace ombrivane {
namespace {

constexpr std::array<std::pair<const char*, const char*>, 4> cabins{{
    {"M", "Economy"},
    {"W", "Premium Economy"},
    {"C", "Business"},
    {"F", "First Class"},
}};

} // namespace

std::string cabinCodeOfName(const std::string& name) {
    for (const auto& [code, cabin] : cabins) {
        if (name == cabin) return code;
    }
    return "";
}

std::string cabinNameOfCode(const std::string& code) {
    for (const auto& [cabinCode, cabin] : cabins) {
        if (code == cabinCode) return cabin;
    }
    return "";
}

} // namespace ombrivane
