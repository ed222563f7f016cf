#include "records/KeyedRecords.h"

namespace ombrivane {
namespace {

template <class Offer, class Journey> Json brief(const Offer& offer, const Journey& journey) {
    return Json{{"id", offer.id.text()},
                {"carrierName", journey.carrierName},
                {"timeOfDeparture", journey.timeOfDeparture},
                {"currency", offer.searchSummary.currency},
                {"totalCost", offer.fareInformation.totalCost}};
}

} // namespace

Json briefly(const FlightSearchOneWay& offer) { return brief(offer, offer.flightSummary); }

Json briefly(const FlightSearchRoundTrip& offer) { return brief(offer, offer.flightDepartureSummary); }

} // namespace ombrivane
