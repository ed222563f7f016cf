#pragma once

#include "base/Completion.h"
#include "records/Trip.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Asks which fare rules an offer carries. Completes with their HTML text, possibly empty, or with nothing
/// when there are none.
template <class Trip> class RestrictionProvider {
public:
    /// @param flight holds an offer of the trip's kind, else it is a fault
    void fetchRestrictions(const std::string& itineraryType, const AnyFlight& flight,
                           const Completion<std::optional<std::string>>& completion) const;
};

using OWRestrictionProvider = RestrictionProvider<OneWay>;

/// Asks which fare rules a journey with its return carries.
class RTRestrictionProvider final : public RestrictionProvider<RoundTrip> {
public:
    using RestrictionProvider<RoundTrip>::fetchRestrictions;

    /// Of two separately chosen offers; both hold a `FlightSearchOneWay`, else it is a fault. The body of
    /// this request has no user type.
    void fetchRestrictions(const std::string& itineraryType, const AnyFlight& flight,
                           const AnyFlight& returnFlight,
                           const Completion<std::optional<std::string>>& completion) const;
};

} // namespace ombrivane
