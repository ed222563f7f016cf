#pragma once

#include "records/FlightSearchOneWay.h"
#include "records/FlightSearchRoundTrip.h"

#include <memory>
#include <variant>
#include <vector>

namespace ombrivane {

/// Offers are shared: a filtered list is a list of pointers.
using OneWayOffer = std::shared_ptr<const FlightSearchOneWay>;
using RoundTripOffer = std::shared_ptr<const FlightSearchRoundTrip>;
using OneWayOffers = std::vector<OneWayOffer>;
using RoundTripOffers = std::vector<RoundTripOffer>;

/// The chosen offer, of either kind. Asking it for the kind that it is not is a fault.
class AnyFlight {
public:
    explicit AnyFlight(OneWayOffer offer) : offer_(std::move(offer)) {}
    explicit AnyFlight(RoundTripOffer offer) : offer_(std::move(offer)) {}

    const FlightSearchOneWay& oneWay() const;
    const FlightSearchRoundTrip& roundTrip() const;

    const Uuid& id() const;
    const std::string& currency() const;
    std::int64_t totalCost() const;

    bool operator==(const AnyFlight&) const = default;

private:
    std::variant<OneWayOffer, RoundTripOffer> offer_;
};

} // namespace ombrivane
