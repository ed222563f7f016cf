#include "offers/OfferFormat.h"

#include "dates/DateFormatter.h"
#include "offers/CabinClass.h"

namespace ombrivane {

std::string OfferFormat::formatDate(const std::string& text) {
    const auto day = Day::parse(text);
    return day ? formatDay(*day, dayPattern::calendar) : text;
}

std::string OfferFormat::cabinClassName(const std::string& code) { return cabinLabel(cabinNameOfCode(code)); }

std::string OfferFormat::price(const std::string& currency, std::int64_t amount) {
    return currency + " " + formatNumber(amount);
}

} // namespace ombrivane
