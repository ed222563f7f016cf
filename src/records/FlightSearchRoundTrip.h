#pragma once

#include "base/Uuid.h"
#include "records/BaggageDetails.h"
#include "records/FareInformation.h"
#include "records/FlightSummary.h"
#include "records/RawData.h"
#include "records/SearchSummary.h"
#include "records/Wire.h"

#include <optional>

namespace ombrivane {

/// One offer for a journey and its return at one fare.
struct FlightSearchRoundTrip {
    /// Not on the wire: fresh for every decoded offer, its identity in lists and selections.
    Uuid id = Uuid::random();
    RoundTripSearchSummary searchSummary;
    FareInformation fareInformation;
    RoundTripFlightSummary flightDepartureSummary;
    RoundTripFlightSummary flightReturnSummary;
    RoundTripBaggageDetails baggageDetails;

    /// Not on the wire: the service's own JSON of this offer, absent until the client stores it.
    std::optional<RawData> rawData;

    /// `id` and `rawData` stand outside of the table and take part in equality and hash.
    static constexpr bool hasLocalIdentity = true;

    bool operator==(const FlightSearchRoundTrip&) const = default;

    static constexpr auto wire =
        fields(field("search_summary", &FlightSearchRoundTrip::searchSummary),
               field("fare_information", &FlightSearchRoundTrip::fareInformation),
               field("flight_departure_summary", &FlightSearchRoundTrip::flightDepartureSummary),
               field("flight_return_summary", &FlightSearchRoundTrip::flightReturnSummary),
               field("baggage_details", &FlightSearchRoundTrip::baggageDetails));
};

} // namespace ombrivane
