#pragma once

#include "results/ResultsModel.h"

namespace ombrivane {

/// The state of the domestic result list: one list for one way, a list for each direction of a round trip.
/// The three share one filter selection.
class DomesticFlightListViewModel final : public ResultsModel {
public:
    Published<int> index{fields, "index", 0}; ///< open tab: 0 departure, 1 return
    Published<OneWayOffers> departureFlights{fields, "departureFlights"};
    Published<OneWayOffers> returnFlights{fields, "returnFlights"};
    Published<OneWayOffers> filteredDepartureFlights{fields, "filteredDepartureFlights"};
    Published<OneWayOffers> filteredReturnFlights{fields, "filteredReturnFlights"};
    Published<Uuid> departureFlightsDisplayedSegmentId{
        fields, "departureFlightsDisplayedSegmentId", Uuid::random()};
    Published<Uuid> departureFlightsSelectedFlightSegmentId{
        fields, "departureFlightsSelectedFlightSegmentId", Uuid::random()};
    Published<Uuid> returnFlightsDisplayedSegmentId{
        fields, "returnFlightsDisplayedSegmentId", Uuid::random()};
    Published<Uuid> returnFlightsSelectedFlightSegmentId{
        fields, "returnFlightsSelectedFlightSegmentId", Uuid::random()};
    Published<bool> departureFlightSelected{fields, "departureFlightSelected"};
    Published<bool> returnFlightSelected{fields, "returnFlightSelected"};
    Published<std::optional<AnyFlight>> returnFlight{fields, "returnFlight"};
};

} // namespace ombrivane
