#include "search/TravellersText.h"

#include "offers/CabinClass.h"
#include "words/Words.h"

#include <charconv>

namespace ombrivane {

std::string shownTravellers(const std::string& text) {
    constexpr std::string_view between = ", ";
    const auto comma = text.find(between);
    if (comma == std::string::npos) return text;
    std::int64_t count = 0;
    const char* const end = text.data() + comma;
    if (std::from_chars(text.data(), end, count).ptr != end) return text;
    return said(Text::travellersAndCabin,
                {{"count", count}, {"cabin", cabinLabel(text.substr(comma + between.size()))}});
}

} // namespace ombrivane
