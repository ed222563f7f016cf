#pragma once

#include "base/Boxed.h"
#include "records/Airport.h"
#include "records/Scalars.h"
#include "records/SegmentDetails.h"
#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// One flight of an offer.
struct Segment {
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
    std::optional<std::string> departureTerminal;
    std::optional<std::string> destinationTerminal;
    std::string carrierName;
    std::string carrierCode;
    std::string carrierLogo; ///< address of a picture
    std::optional<std::string> carrierCodeMarketing;
    std::optional<std::string> carrierCodeMarketingName;
    std::string totalFlyingHours; ///< as shown
    std::string flightNumber;
    std::optional<std::string> equipmentType;
    std::optional<std::string> rph;
    ConnectionTime connectionTime;
    Boxed<SegmentDetails> segmentDetails;

    bool operator==(const Segment&) const = default;

    static constexpr auto wire = fields(
        field("dateOfDeparture", &Segment::dateOfDeparture),
        field("timeOfDeparture", &Segment::timeOfDeparture), field("dateOfArrival", &Segment::dateOfArrival),
        field("timeOfArrival", &Segment::timeOfArrival),
        field("timeOfDepartureSystem", &Segment::timeOfDepartureSystem),
        field("timeOfArrivalSystem", &Segment::timeOfArrivalSystem),
        field("locationDeparture", &Segment::locationDeparture),
        field("airportDeparture", &Segment::airportDeparture),
        field("locationArrival", &Segment::locationArrival),
        field("airportArrival", &Segment::airportArrival),
        field("departure_terminal", &Segment::departureTerminal),
        field("destination_terminal", &Segment::destinationTerminal),
        field("carrierName", &Segment::carrierName), field("carrierCode", &Segment::carrierCode),
        field("carrierLogo", &Segment::carrierLogo),
        field("carrierCodeMarketing", &Segment::carrierCodeMarketing),
        field("carrierCodeMarketingName", &Segment::carrierCodeMarketingName),
        field("total_flying_hours", &Segment::totalFlyingHours),
        field("flightNumber", &Segment::flightNumber), field("equipmentType", &Segment::equipmentType),
        field("rph", &Segment::rph), field("connection_time", &Segment::connectionTime),
        field("segment_details", &Segment::segmentDetails));
};

} // namespace ombrivane
