#include "search/OfferFormat.h"

#include "search/CabinClass.h"
#include "search/CustomDateHelper.h"
#include "support/DateFormatter.h"

namespace ombrivane {

std::string OfferFormat::formatDate(const std::string& text) {
    return ombrivane::formatDate(CustomDateHelper::parse(text, datePattern::wire), datePattern::calendar);
}

std::string OfferFormat::cabinClassName(const std::string& code) { return cabinNameOfCode(code); }

std::string OfferFormat::price(const std::string& currency, std::int64_t amount) {
    return currency + " " + formatNumber(amount);
}

} // namespace ombrivane
