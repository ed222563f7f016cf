#pragma once

#include "results/ResultsModel.h"
#include "services/Envelope.h"

#include <cstdint>
#include <string>

namespace ombrivane::bench {

/// What the component does with a search answer: from its bytes to the sorted list of shared offers. Without
/// a limit, since the longest list is longer than an answer may be.
inline OneWayOffers pipeline(const std::string& answer) {
    const Envelope envelope(answer, SIZE_MAX);
    OneWayOffers offers;
    if (envelope.success()) offers = envelope.offers<FlightSearchOneWay>();
    sortByTotalCost(offers);
    return offers;
}

} // namespace ombrivane::bench
