#include "search/TravellersText.h"

#include "offers/CabinClass.h"
#include "words/Words.h"

namespace ombrivane {

std::string shownTravellers(const std::string& text) {
    constexpr std::string_view between = ", ";
    const auto comma = text.find(between);
    if (comma == std::string::npos) return text;
    return said(
        Text::travellersAndCabin,
        {{"count", text.substr(0, comma)}, {"cabin", cabinLabel(text.substr(comma + between.size()))}});
}

} // namespace ombrivane
