#pragma once

#include "dates/Day.h"

#include <optional>
#include <string>

namespace ombrivane {

/// What the search form hands to a result list. Counts are decimal texts.
struct SearchRequest {
    std::string tripType; ///< "oneway" or "round"
    std::string departCityCode;
    std::string departCity;
    std::string destCityCode;
    std::string destCity;
    Day departDate;
    std::optional<Day> returnDate; ///< of a round trip
    std::string nationality;
    std::string adults;
    std::string children;
    std::string infants;
    std::string flightClass; ///< code, empty for any
};

} // namespace ombrivane
