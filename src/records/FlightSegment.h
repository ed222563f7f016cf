#pragma once

#include "records/Scalars.h"
#include "records/Wire.h"

#include <string>

namespace ombrivane {

/// One leg of a one-way availability.
struct FlightSegment {
    std::string carrierCode;
    std::string carrierLogo;
    std::string carrierName;
    std::string flightNumber;
    std::string segDepartureDate;
    std::string segDepartureTime;
    std::string segArrivalDate;
    std::string segArrivalTime;
    std::string segTotalFlyingHours;
    std::string segDepartureAirportCode;
    std::string segDepartureAirport;
    std::string segDepartureCity;
    std::string segArrivalAirportCode;
    std::string segArrivalAirport;
    std::string segArrivalCity;
    ConnectionTime segConnectionTime;

    bool operator==(const FlightSegment&) const = default;

    static constexpr auto wire = fields(
        field("carrierCode", &FlightSegment::carrierCode), field("carrierLogo", &FlightSegment::carrierLogo),
        field("carrierName", &FlightSegment::carrierName),
        field("flight_number", &FlightSegment::flightNumber),
        field("seg_departure_date", &FlightSegment::segDepartureDate),
        field("seg_departure_time", &FlightSegment::segDepartureTime),
        field("seg_arrival_date", &FlightSegment::segArrivalDate),
        field("seg_arrival_time", &FlightSegment::segArrivalTime),
        field("seg_total_flying_hours", &FlightSegment::segTotalFlyingHours),
        field("seg_departure_airport_code", &FlightSegment::segDepartureAirportCode),
        field("seg_departure_airport", &FlightSegment::segDepartureAirport),
        field("seg_departure_city", &FlightSegment::segDepartureCity),
        field("seg_arrival_airport_code", &FlightSegment::segArrivalAirportCode),
        field("seg_arrival_airport", &FlightSegment::segArrivalAirport),
        field("seg_arrival_city", &FlightSegment::segArrivalCity),
        field("seg_connection_time", &FlightSegment::segConnectionTime));
};

/// One leg of a round-trip availability; it names the countries as well.
struct FlightSegments {
    std::string carrierCode;
    std::string carrierLogo;
    std::string carrierName;
    std::string flightNumber;
    std::string segDepartureDate;
    std::string segDepartureTime;
    std::string segArrivalDate;
    std::string segArrivalTime;
    std::string segTotalFlyingHours;
    std::string segDepartureAirportCode;
    std::string segDepartureAirport;
    std::string segDepartureCity;
    std::string segDepartureCountry;
    std::string segArrivalAirportCode;
    std::string segArrivalAirport;
    std::string segArrivalCity;
    std::string segArrivalCountry;
    ConnectionTime segConnectionTime;

    bool operator==(const FlightSegments&) const = default;

    static constexpr auto wire =
        fields(field("carrierCode", &FlightSegments::carrierCode),
               field("carrierLogo", &FlightSegments::carrierLogo),
               field("carrierName", &FlightSegments::carrierName),
               field("flight_number", &FlightSegments::flightNumber),
               field("seg_departure_date", &FlightSegments::segDepartureDate),
               field("seg_departure_time", &FlightSegments::segDepartureTime),
               field("seg_arrival_date", &FlightSegments::segArrivalDate),
               field("seg_arrival_time", &FlightSegments::segArrivalTime),
               field("seg_total_flying_hours", &FlightSegments::segTotalFlyingHours),
               field("seg_departure_airport_code", &FlightSegments::segDepartureAirportCode),
               field("seg_departure_airport", &FlightSegments::segDepartureAirport),
               field("seg_departure_city", &FlightSegments::segDepartureCity),
               field("seg_departure_country", &FlightSegments::segDepartureCountry),
               field("seg_arrival_airport_code", &FlightSegments::segArrivalAirportCode),
               field("seg_arrival_airport", &FlightSegments::segArrivalAirport),
               field("seg_arrival_city", &FlightSegments::segArrivalCity),
               field("seg_arrival_country", &FlightSegments::segArrivalCountry),
               field("seg_connection_time", &FlightSegments::segConnectionTime));
};

} // namespace ombrivane
