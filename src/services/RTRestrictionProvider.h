#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Asks which fare rules a journey with its return carries.
class RTRestrictionProvider {
public:
    /// @param flight holds a `FlightSearchRoundTrip`, else it is a fault
    void fetchRestrictions(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<std::optional<std::string>>& completion) const;

    /// Of two separately chosen offers; both hold a `FlightSearchOneWay`, else it is a fault. The body of
    /// this request has no user type.
    void fetchRestrictions(const std::string& itineraryType, const AnyFlight& flight,
                           const AnyFlight& returnFlight,
                           const Completion<std::optional<std::string>>& completion) const;
};

} // namespace ombrivane
