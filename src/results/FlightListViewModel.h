#pragma once

#include "results/ResultsModel.h"

namespace ombrivane {

/// The state of the international result list.
class FlightListViewModel final : public ResultsModel {
public:
    Published<RoundTripOffers> roundtripFlights{fields, "roundtripFlights"};
    Published<RoundTripOffers> filteredRoundtripFlights{fields, "filteredRoundtripFlights"};
};

} // namespace ombrivane
