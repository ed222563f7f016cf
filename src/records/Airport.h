#pragma once

#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// A place: an element of the airport search and part of every flight.
struct Airport {
    std::string name;
    std::string city;
    std::string code; ///< IATA code
    std::optional<std::string> country;

    bool operator==(const Airport&) const = default;

    static constexpr auto wire = fields(field("name", &Airport::name), field("city", &Airport::city),
                                        field("code", &Airport::code), field("country", &Airport::country));
};

} // namespace ombrivane
