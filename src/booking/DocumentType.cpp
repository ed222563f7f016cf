#include "booking/DocumentType.h"

#include <array>
#include <utility>

namespace ombrivane {
namespace {

using Pair = std::pair<const char*, const char*>;

constexpr std::array<Pair, 5> labels{{
    {passportType, "Passport"},
    {"citizenship", "Citizenship"},
    {"voters_id", "Voters ID"},
    {"birth_certificate", "Birth Certificate"},
    {"minor_id", "Minor ID"},
}};

constexpr std::array<Pair, 3> typeCodes{{{"Adult", "ADT"}, {"Child", "CHD"}, {"Infant", "INF"}}};

template <std::size_t size> std::string lookUp(const std::array<Pair, size>& table, const std::string& key) {
    for (const auto& [from, to] : table) {
        if (key == from) return to;
    }
    return "";
}

} // namespace

std::string documentLabel(const std::string& wireCode) { return lookUp(labels, wireCode); }

std::string passengerTypeCode(const std::string& type) { return lookUp(typeCodes, type); }

} // namespace ombrivane
