#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"
#include "services/FlightQuery.h"

namespace ombrivane {

/// Searches one journey.
class FlightSearchOneWayProvider {
public:
    /// Completes with the offers in the service's order, each with its `rawData`. One that does not decode
    /// loses the whole answer. An empty list without an error means that nothing was found.
    void searchFlights(const FlightQuery& query, const Completion<OneWayOffers>& completion) const;
};

} // namespace ombrivane
