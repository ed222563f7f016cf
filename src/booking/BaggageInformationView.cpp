#include "booking/BaggageInformationView.h"

namespace ombrivane {
namespace {

/// What the card holds before the availability has arrived.
const BaggageBlock sampleBlock{"KTM - JFK", "7 Kg", "46 Kg"};

} // namespace

std::vector<BaggageBlock> baggageBlocks(const std::optional<OWFlightAvailability>& availability) {
    if (!availability) return {sampleBlock};
    const auto& flights = availability->flightsSummary;
    const auto& baggage = availability->baggageDetails;
    return {{flights.departCityAirportCode + " - " + flights.destCityAirportCode,
             baggage.cabin,
             baggage.baggage}};
}

std::vector<BaggageBlock> baggageBlocks(const std::optional<RTFlightAvailability>& availability) {
    if (!availability) return {sampleBlock, sampleBlock};
    const auto& flights = availability->flightsSummary;
    const auto& going = availability->baggageDetails.outbound;
    const auto& coming = availability->baggageDetails.baggageDetailsReturn;
    return {{flights.departCityAirportCode + " - " + flights.destCityAirportCode, going.cabin, going.baggage},
            {flights.returnDepartCityAirportCode + " - " + flights.returnDestCityAirportCode,
             coming.cabin,
             coming.baggage}};
}

} // namespace ombrivane
