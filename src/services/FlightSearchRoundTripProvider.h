#pragma once

#include "base/Completion.h"
#include "records/AnyFlight.h"
#include "services/FlightQuery.h"

namespace ombrivane {

/// Searches a journey and its return: as one offer, or inside the home country as two lists.
class FlightSearchRoundTripProvider {
public:
    /// As `FlightSearchOneWayProvider::searchFlights`, for offers of both journeys together.
    void searchFlights(const FlightQuery& query, const Completion<RoundTripOffers>& completion) const;

    /// The two lists of a domestic round search. Their offers carry no `rawData`.
    struct SpecialRoundFlights {
        OneWayOffers departureFlights;
        OneWayOffers returnFlights;

        /// How many offers, of both lists.
        std::size_t size() const { return departureFlights.size() + returnFlights.size(); }
    };

    /// A failure in either list discards both.
    void searchSpecialRoundFlights(const FlightQuery& query,
                                   const Completion<SpecialRoundFlights>& completion) const;
};

} // namespace ombrivane
