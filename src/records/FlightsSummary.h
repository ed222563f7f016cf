#pragma once

#include "records/FlightSegment.h"
#include "records/Wire.h"

#include <string>
#include <vector>

namespace ombrivane {

/// The journey of a one-way availability as priced now. Dates are "yyyy-MM-dd".
struct FlightsSummary {
    std::string deptDate;
    std::string deptTime;
    std::string destDate;
    std::string destTime;
    std::string totalFlyingHours;
    std::string departCityAirportCode;
    std::string departCityAirportName;
    std::string departCityName;
    std::string destCityAirportCode;
    std::string destCityAirportName;
    std::string destCityName;
    std::string carrierCode;
    std::string carrierLogo;
    std::string carrierName;
    std::vector<FlightSegment> flightSegments;

    bool operator==(const FlightsSummary&) const = default;

    static constexpr auto wire =
        fields(field("dept_date", &FlightsSummary::deptDate), field("dept_time", &FlightsSummary::deptTime),
               field("dest_date", &FlightsSummary::destDate), field("dest_time", &FlightsSummary::destTime),
               field("total_flying_hours", &FlightsSummary::totalFlyingHours),
               field("depart_city_airport_code", &FlightsSummary::departCityAirportCode),
               field("depart_city_airport_name", &FlightsSummary::departCityAirportName),
               field("depart_city_name", &FlightsSummary::departCityName),
               field("dest_city_airport_code", &FlightsSummary::destCityAirportCode),
               field("dest_city_airport_name", &FlightsSummary::destCityAirportName),
               field("dest_city_name", &FlightsSummary::destCityName),
               field("carrierCode", &FlightsSummary::carrierCode),
               field("carrierLogo", &FlightsSummary::carrierLogo),
               field("carrierName", &FlightsSummary::carrierName),
               field("flight_segments", &FlightsSummary::flightSegments));
};

} // namespace ombrivane
