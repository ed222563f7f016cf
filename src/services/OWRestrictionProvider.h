#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Asks which fare rules a one-way offer carries.
class OWRestrictionProvider {
public:
    /// @param flight holds a `FlightSearchOneWay`, else it is a fault
    /// Completes with the HTML text of the rules, or with nothing when there are none.
    void fetchRestrictions(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<std::optional<std::string>>& completion) const;
};

} // namespace ombrivane
