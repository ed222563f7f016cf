#pragma once

#include "keyed/Keyed.h"
#include "records/AnyFlight.h"
#include "records/Encode.h"

#include <memory>
#include <optional>

namespace ombrivane {

/// Records are read by key as their JSON. Only a client makes them, so they cannot be set.
template <WireRecord Record> struct Keyed<Record> {
    static Json toJson(const Record& record) { return encode(record); }
    static Record fromJson(const Json& /*json*/) { throw KeyedError("a record cannot be set"); }
};

/// An offer of a list by what tells it from the others; its whole tree would drown the reader.
Json briefly(const FlightSearchOneWay& offer);
Json briefly(const FlightSearchRoundTrip& offer);

template <> struct Keyed<OneWayOffer> {
    static Json toJson(const OneWayOffer& offer) { return offer ? briefly(*offer) : Json(); }
    static OneWayOffer fromJson(const Json& /*json*/) { throw KeyedError("an offer cannot be set"); }
};

template <> struct Keyed<RoundTripOffer> {
    static Json toJson(const RoundTripOffer& offer) { return offer ? briefly(*offer) : Json(); }
    static RoundTripOffer fromJson(const Json& /*json*/) { throw KeyedError("an offer cannot be set"); }
};

template <> struct Keyed<AnyFlight> {
    static Json toJson(const AnyFlight& flight) {
        return Json{
            {"id", flight.id().text()}, {"currency", flight.currency()}, {"totalCost", flight.totalCost()}};
    }
    static AnyFlight fromJson(const Json& /*json*/) { throw KeyedError("an offer cannot be set"); }
};

} // namespace ombrivane
