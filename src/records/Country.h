#pragma once

#include "records/Wire.h"

#include <cstdint>
#include <string>

namespace ombrivane {

/// A country of the nationality choice.
struct Country {
    std::int64_t id = 0;
    std::string name;
    std::string nationality; ///< demonym, shown in the nationality list
    std::string shortName;   ///< two-letter code, sent as the nationality of a search
    std::string countryCode; ///< as the service gives it

    bool operator==(const Country&) const = default;

    static constexpr auto wire = fields(
        field("id", &Country::id), field("name", &Country::name), field("nationality", &Country::nationality),
        field("short_name", &Country::shortName), field("country_code", &Country::countryCode));
};

} // namespace ombrivane
