#include "booking/BaggageInformationView.h"

namespace ombrivane {
namespace {

/// What the card holds before the availability has arrived.
const BaggageBlock sampleBlock{"KTM - JFK", "7 Kg", "46 Kg"};

std::vector<BaggageBlock> blocksOf(const std::optional<OWFlightAvailability>& availability) {
    if (!availability) return {sampleBlock};
    const auto& flights = availability->flightsSummary;
    const auto& baggage = availability->baggageDetails;
    return {{flights.departCityAirportCode + " - " + flights.destCityAirportCode,
             baggage.cabin,
             baggage.baggage}};
}

std::vector<BaggageBlock> blocksOf(const std::optional<RTFlightAvailability>& availability) {
    if (!availability) return {sampleBlock, sampleBlock};
    const auto& flights = availability->flightsSummary;
    const auto& going = availability->baggageDetails.outbound;
    const auto& coming = availability->baggageDetails.baggageDetailsReturn;
    return {{flights.departCityAirportCode + " - " + flights.destCityAirportCode, going.cabin, going.baggage},
            {flights.returnDepartCityAirportCode + " - " + flights.returnDestCityAirportCode,
             coming.cabin,
             coming.baggage}};
}

} // namespace

BaggageInformationView::BaggageInformationView(std::string_view screenName, const Field<bool>& loading,
                                               std::function<std::vector<BaggageBlock>()> makeBlocks) :
    Screen(screenName),
    isLoading(fields, "isLoading", loading),
    title(fields, "title", constant("Baggage Information")),
    cabinLabel(fields, "cabinLabel", constant("Cabin Baggage")),
    checkInLabel(fields, "checkInLabel", constant("Check-In Baggage")),
    blocks(fields, "blocks", std::move(makeBlocks)) {}

OWBaggageInformationView::OWBaggageInformationView(
    const Field<std::optional<OWFlightAvailability>>& availability, const Field<bool>& loading) :
    BaggageInformationView("OWBaggageInformationView", loading,
                           [this] { return blocksOf(flightAvailability.get()); }),
    flightAvailability(fields, "flightAvailability", availability) {}

RTBaggageInformationView::RTBaggageInformationView(
    const Field<std::optional<RTFlightAvailability>>& availability, const Field<bool>& loading) :
    BaggageInformationView("RTBaggageInformationView", loading,
                           [this] { return blocksOf(flightAvailability.get()); }),
    flightAvailability(fields, "flightAvailability", availability) {}

} // namespace ombrivane
