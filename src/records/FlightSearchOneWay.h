#pragma once

#include "base/Uuid.h"
#include "records/BaggageDetails.h"
#include "records/FareInformation.h"
#include "records/FlightSummary.h"
#include "records/RawData.h"
#include "records/SearchSummary.h"
#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// One offer for one journey: an international one, a domestic one, or one leg of a domestic special round.
struct FlightSearchOneWay {
    /// Not on the wire: fresh for every decoded offer, its identity in lists and selections.
    Uuid id = Uuid::random();
    SearchSummary searchSummary;
    FareInformation fareInformation;
    BaggageDetails baggageDetails;
    FlightSummary flightSummary;
    std::optional<std::string> bookingClass;

    /// Not on the wire: the service's own JSON of this offer, absent until the client stores it.
    std::optional<RawData> rawData;

    /// `id` and `rawData` stand outside of the table and take part in equality and hash.
    static constexpr bool hasLocalIdentity = true;

    bool operator==(const FlightSearchOneWay&) const = default;

    static constexpr auto wire = fields(field("search_summary", &FlightSearchOneWay::searchSummary),
                                        field("fare_information", &FlightSearchOneWay::fareInformation),
                                        field("flight_summary", &FlightSearchOneWay::flightSummary),
                                        field("baggage_details", &FlightSearchOneWay::baggageDetails),
                                        field("booking_class", &FlightSearchOneWay::bookingClass));
};

} // namespace ombrivane
