#include "services/FlightSearchOneWayProvider.h"

namespace ombrivane {

void FlightSearchOneWayProvider::searchFlights(const FlightQuery& query,
                                               const Completion<OneWayOffers>& completion) const {
    send<OneWayOffers>(
        searchCall(query),
        [](const Envelope& envelope) { return envelope.offers<FlightSearchOneWay>(); },
        completion);
}

} // namespace ombrivane
