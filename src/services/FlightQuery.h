#pragma once

#include "dates/Day.h"
#include "services/Frame.h"

#include <optional>
#include <string>

namespace ombrivane {

/// What a customer searches for. Counts are decimal texts, as the form holds them.
struct FlightQuery {
    std::string tripType;   ///< "oneway" or "round"
    std::string departCity; ///< IATA code
    std::string destCity;   ///< IATA code
    Day departDate;
    std::optional<Day> returnDate; ///< of round searches
    std::string nationality;
    std::string adults;
    std::string children;
    std::string infants;
    std::string flightClass; ///< "M", "W", "C", "F" or, for any, empty
};

/// The search request of `query`. A count that is no number is a fault.
ServiceCall searchCall(const FlightQuery& query);

/// A decimal text as a whole number. Anything else is a fault that names `what`.
std::int64_t countFrom(const std::string& text, const std::string& what);

} // namespace ombrivane
