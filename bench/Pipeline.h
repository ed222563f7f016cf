#pragma once

#include "results/ResultsModel.h"
#include "services/Envelope.h"

#include <string>

namespace ombrivane::bench {

/// What the component does with a search answer: from its bytes to the sorted list of shared offers.
inline OneWayOffers pipeline(const std::string& answer) {
    const Envelope envelope(answer, limits::searchStructureBytes);
    OneWayOffers offers;
    if (envelope.success()) offers = envelope.offers<FlightSearchOneWay>();
    sortByTotalCost(offers);
    return offers;
}

} // namespace ombrivane::bench
