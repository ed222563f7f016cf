// The airports that the service knows, with what schedules need of them.
#pragma once

#include "sandbox/Json.h"

#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

struct Airport {
    std::string_view code;
    std::string_view name;
    std::string_view city;
    std::string_view country;
    double latitude;
    double longitude;
    int utcOffset; ///< minutes east of UTC, the standard time all year round

    [[nodiscard]] bool isDomestic() const { return country == "Nepal"; }

    /// Whether flights abroad leave from here; elsewhere in Nepal they go by way of Kathmandu.
    [[nodiscard]] bool isInternational() const;

    /// Two airports are listed without any flight, so that a search without offers can be made on purpose.
    [[nodiscard]] bool hasService() const;
};

const std::vector<Airport>& airports();

/// Null when the code is not known; codes are compared exactly.
const Airport* airportOf(std::string_view code);

/// Airports whose code, city, name or country has a word that starts with the query, in any case of letters,
/// an exact code first. The empty query gives the popular airports.
std::vector<const Airport*> searchAirports(std::string_view query);

/// Great-circle distance in kilometres.
double distance(const Airport& from, const Airport& to);

Json airportJson(const Airport& airport);

} // namespace ombrivane::sandbox
