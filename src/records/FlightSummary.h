#pragma once

#include "base/Boxed.h"
#include "records/Airport.h"
#include "records/Fares.h"
#include "records/Segment.h"
#include "records/Wire.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One journey of an offer with its segments. The total flying time is processed before the segments.
template <class FaresType> struct FlightSummaryOf {
    std::optional<std::string> flightId;
    std::optional<std::string> bookingClass;
    std::optional<std::string> journeyKey;
    std::optional<std::string> fareKey;
    std::string dateOfDeparture; ///< "yyyy-MM-dd"
    std::string timeOfDeparture; ///< as shown
    std::string dateOfArrival;
    std::string timeOfArrival;
    std::optional<std::string> timeOfDepartureSystem;
    std::optional<std::string> timeOfArrivalSystem;
    std::string locationDeparture;
    Airport airportDeparture;
    std::string locationArrival;
    Airport airportArrival;
    std::string carrierName;
    std::string carrierCode;
    std::string carrierLogo; ///< address of a picture
    std::optional<std::string> carrierCodeMarketing;
    std::optional<std::string> carrierCodeMarketingName;
    std::vector<Segment> segments;
    std::string totalFlyingHours; ///< as shown
    Boxed<FaresType> fares;

    bool operator==(const FlightSummaryOf&) const = default;

    static constexpr auto wire = fields(
        field("FlightId", &FlightSummaryOf::flightId), field("booking_class", &FlightSummaryOf::bookingClass),
        field("journeyKey", &FlightSummaryOf::journeyKey), field("fareKey", &FlightSummaryOf::fareKey),
        field("dateOfDeparture", &FlightSummaryOf::dateOfDeparture),
        field("timeOfDeparture", &FlightSummaryOf::timeOfDeparture),
        field("dateOfArrival", &FlightSummaryOf::dateOfArrival),
        field("timeOfArrival", &FlightSummaryOf::timeOfArrival),
        field("timeOfDepartureSystem", &FlightSummaryOf::timeOfDepartureSystem),
        field("timeOfArrivalSystem", &FlightSummaryOf::timeOfArrivalSystem),
        field("locationDeparture", &FlightSummaryOf::locationDeparture),
        field("airportDeparture", &FlightSummaryOf::airportDeparture),
        field("locationArrival", &FlightSummaryOf::locationArrival),
        field("airportArrival", &FlightSummaryOf::airportArrival),
        field("carrierName", &FlightSummaryOf::carrierName),
        field("carrierCode", &FlightSummaryOf::carrierCode),
        field("carrierLogo", &FlightSummaryOf::carrierLogo),
        field("carrierCodeMarketing", &FlightSummaryOf::carrierCodeMarketing),
        field("carrierCodeMarketingName", &FlightSummaryOf::carrierCodeMarketingName),
        field("total_flying_hours", &FlightSummaryOf::totalFlyingHours),
        field("segments", &FlightSummaryOf::segments), field("fares", &FlightSummaryOf::fares));
};

using FlightSummary = FlightSummaryOf<Fares>;
using RoundTripFlightSummary = FlightSummaryOf<RoundTripFares>;

} // namespace ombrivane
