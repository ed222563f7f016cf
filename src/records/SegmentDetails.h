#pragma once

#include "records/Attributed.h"
#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Attributes of the reservation system, carried and not interpreted.
struct SegmentDetailsAttributes {
    std::optional<std::string> key;
    std::optional<std::string> group;
    std::optional<std::string> carrier;
    std::optional<std::string> flightNumber;
    std::optional<std::string> origin;
    std::optional<std::string> destination;
    std::optional<std::string> departureTime;
    std::optional<std::string> arrivalTime;
    std::optional<std::string> flightTime;
    std::optional<std::string> equipment;
    std::optional<std::string> status;
    std::optional<std::string> supplierCode;
    std::optional<std::string> changeOfPlane;
    std::optional<std::string> optionalServicesIndicator;
    std::optional<std::string> apisRequirementsRef;

    bool operator==(const SegmentDetailsAttributes&) const = default;

    static constexpr auto wire =
        fields(field("Key", &SegmentDetailsAttributes::key), field("Group", &SegmentDetailsAttributes::group),
               field("Carrier", &SegmentDetailsAttributes::carrier),
               field("FlightNumber", &SegmentDetailsAttributes::flightNumber),
               field("Origin", &SegmentDetailsAttributes::origin),
               field("Destination", &SegmentDetailsAttributes::destination),
               field("DepartureTime", &SegmentDetailsAttributes::departureTime),
               field("ArrivalTime", &SegmentDetailsAttributes::arrivalTime),
               field("FlightTime", &SegmentDetailsAttributes::flightTime),
               field("Equipment", &SegmentDetailsAttributes::equipment),
               field("Status", &SegmentDetailsAttributes::status),
               field("SupplierCode", &SegmentDetailsAttributes::supplierCode),
               field("ChangeOfPlane", &SegmentDetailsAttributes::changeOfPlane),
               field("OptionalServicesIndicator", &SegmentDetailsAttributes::optionalServicesIndicator),
               field("APISRequirementsRef", &SegmentDetailsAttributes::apisRequirementsRef));
};

/// What the reservation system books a segment by.
struct SegmentRef {
    std::optional<std::string> bookingCode;
    std::optional<std::string> bookingCount;
    std::optional<std::string> cabinClass;
    std::optional<std::string> fareInfoRef;
    std::optional<std::string> segmentRef;
    std::optional<std::string> hostTokenRef;
    std::optional<std::string> hostToken;

    bool operator==(const SegmentRef&) const = default;

    static constexpr auto wire =
        fields(field("BookingCode", &SegmentRef::bookingCode),
               field("BookingCount", &SegmentRef::bookingCount), field("CabinClass", &SegmentRef::cabinClass),
               field("FareInfoRef", &SegmentRef::fareInfoRef), field("SegmentRef", &SegmentRef::segmentRef),
               field("HostTokenRef", &SegmentRef::hostTokenRef), field("hostToken", &SegmentRef::hostToken));
};

/// Who flies a segment that another sells.
struct AirCodeshareInfoAttributes {
    std::optional<std::string> operatingCarrier;
    std::optional<std::string> operatingFlightNumber;

    bool operator==(const AirCodeshareInfoAttributes&) const = default;

    static constexpr auto wire =
        fields(field("OperatingCarrier", &AirCodeshareInfoAttributes::operatingCarrier),
               field("OperatingFlightNumber", &AirCodeshareInfoAttributes::operatingFlightNumber));
};
using AirCodeshareInfo = Attributed<AirCodeshareInfoAttributes>;

/// Who provides the seats.
struct AirAirAvailInfoAttributes {
    std::optional<std::string> providerCode;

    bool operator==(const AirAirAvailInfoAttributes&) const = default;

    static constexpr auto wire = fields(field("ProviderCode", &AirAirAvailInfoAttributes::providerCode));
};
using AirAirAvailInfo = Attributed<AirAirAvailInfoAttributes>;

/// Where the flight details stand.
struct AirFlightDetailsRefAttributes {
    std::optional<std::string> key;

    bool operator==(const AirFlightDetailsRefAttributes&) const = default;

    static constexpr auto wire = fields(field("Key", &AirFlightDetailsRefAttributes::key));
};
using AirFlightDetailsRef = Attributed<AirFlightDetailsRefAttributes>;

/// The reservation system's own view of a segment.
struct SegmentDetails {
    std::optional<SegmentDetailsAttributes> attributes;
    std::optional<AirCodeshareInfo> airCodeshareInfo;
    std::optional<AirAirAvailInfo> airAirAvailInfo;
    std::optional<AirFlightDetailsRef> airFlightDetailsRef;
    std::optional<SegmentRef> segmentRef;

    bool operator==(const SegmentDetails&) const = default;

    static constexpr auto wire = fields(field("attributes", &SegmentDetails::attributes),
                                        field("airCodeshareInfo", &SegmentDetails::airCodeshareInfo),
                                        field("airAirAvailInfo", &SegmentDetails::airAirAvailInfo),
                                        field("airFlightDetailsRef", &SegmentDetails::airFlightDetailsRef),
                                        field("segment_ref", &SegmentDetails::segmentRef));
};

} // namespace ombrivane
