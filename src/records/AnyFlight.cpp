#include "records/AnyFlight.h"

#include "base/Fault.h"

namespace ombrivane {

const FlightSearchOneWay& AnyFlight::oneWay() const {
    const auto* offer = std::get_if<OneWayOffer>(&offer_);
    if (offer == nullptr) fatalFault("the chosen flight is no FlightSearchOneWay");
    return **offer;
}

const FlightSearchRoundTrip& AnyFlight::roundTrip() const {
    const auto* offer = std::get_if<RoundTripOffer>(&offer_);
    if (offer == nullptr) fatalFault("the chosen flight is no FlightSearchRoundTrip");
    return **offer;
}

const Uuid& AnyFlight::id() const {
    return std::visit([](const auto& offer) -> const Uuid& { return offer->id; }, offer_);
}

const std::string& AnyFlight::currency() const {
    return std::visit([](const auto& offer) -> const std::string& { return offer->searchSummary.currency; },
                      offer_);
}

std::int64_t AnyFlight::totalCost() const {
    return std::visit([](const auto& offer) { return offer->fareInformation.totalCost; }, offer_);
}

} // namespace ombrivane
