#include "services/FlightSearchRoundTripProvider.h"

namespace ombrivane {

void FlightSearchRoundTripProvider::searchFlights(const FlightQuery& query,
                                                  const Completion<RoundTripOffers>& completion) const {
    send<RoundTripOffers>(
        searchCall(query),
        [](const Envelope& envelope) { return envelope.offers<FlightSearchRoundTrip>(); },
        completion);
}

void FlightSearchRoundTripProvider::searchSpecialRoundFlights(
    const FlightQuery& query, const Completion<SpecialRoundFlights>& completion) const {
    send<SpecialRoundFlights>(
        searchCall(query),
        [](const Envelope& envelope) {
            auto [departing, returning] = envelope.pairOfOffers<FlightSearchOneWay>();
            return SpecialRoundFlights{std::move(departing), std::move(returning)};
        },
        completion);
}

} // namespace ombrivane
