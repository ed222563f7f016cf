#pragma once

#include "base/Completion.h"
#include "records/Airport.h"

#include <string>
#include <vector>

namespace ombrivane {

/// Searches airports for the origin and destination screens.
class AirportSearchProvider {
public:
    /// @param query goes into the address as it stands, so a blank makes the address invalid; empty asks for
    /// the
    ///        popular airports
    void searchAirports(const std::string& query, const Completion<std::vector<Airport>>& completion) const;
};

} // namespace ombrivane
