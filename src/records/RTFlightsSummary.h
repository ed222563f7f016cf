#pragma once

#include "records/FlightSegment.h"
#include "records/Wire.h"

#include <string>
#include <vector>

namespace ombrivane {

/// Both journeys of a round-trip availability as priced now. Dates are "yyyy-MM-dd".
struct RTFlightsSummary {
    std::string deptDate;
    std::string deptTime;
    std::string destDate;
    std::string destTime;
    std::string totalFlyingHours;
    std::string departCityAirportCode;
    std::string departCityAirportName;
    std::string departCityName;
    std::string departCountry;
    std::string destCityAirportCode;
    std::string destCityAirportName;
    std::string destCityName;
    std::string destCountry;
    std::string carrierCode;
    std::string carrierLogo;
    std::string carrierName;
    std::string returnDeptDate;
    std::string returnDeptTime;
    std::string returnDestDate;
    std::string returnDestTime;
    std::string returnTotalFlyingHours;
    std::string returnDepartCityAirportCode;
    std::string returnDepartCityAirportName;
    std::string returnDepartCityName;
    std::string returnDepartCountry;
    std::string returnDestCityAirportCode;
    std::string returnDestCityAirportName;
    std::string returnDestCityName;
    std::string returnDestCountry;
    std::string carrierCodeReturn;
    std::string carrierLogoReturn;
    std::string carrierNameReturn;
    std::vector<FlightSegments> flightSegmentsOutbound;
    std::vector<FlightSegments> flightSegmentsReturn;

    bool operator==(const RTFlightsSummary&) const = default;

    static constexpr auto wire = fields(
        field("dept_date", &RTFlightsSummary::deptDate), field("dept_time", &RTFlightsSummary::deptTime),
        field("dest_date", &RTFlightsSummary::destDate), field("dest_time", &RTFlightsSummary::destTime),
        field("total_flying_hours", &RTFlightsSummary::totalFlyingHours),
        field("depart_city_airport_code", &RTFlightsSummary::departCityAirportCode),
        field("depart_city_airport_name", &RTFlightsSummary::departCityAirportName),
        field("depart_city_name", &RTFlightsSummary::departCityName),
        field("depart_country", &RTFlightsSummary::departCountry),
        field("dest_city_airport_code", &RTFlightsSummary::destCityAirportCode),
        field("dest_city_airport_name", &RTFlightsSummary::destCityAirportName),
        field("dest_city_name", &RTFlightsSummary::destCityName),
        field("dest_country", &RTFlightsSummary::destCountry),
        field("carrierCode", &RTFlightsSummary::carrierCode),
        field("carrierLogo", &RTFlightsSummary::carrierLogo),
        field("carrierName", &RTFlightsSummary::carrierName),
        field("return_dept_date", &RTFlightsSummary::returnDeptDate),
        field("return_dept_time", &RTFlightsSummary::returnDeptTime),
        field("return_dest_date", &RTFlightsSummary::returnDestDate),
        field("return_dest_time", &RTFlightsSummary::returnDestTime),
        field("return_total_flying_hours", &RTFlightsSummary::returnTotalFlyingHours),
        field("return_depart_city_airport_code", &RTFlightsSummary::returnDepartCityAirportCode),
        field("return_depart_city_airport_name", &RTFlightsSummary::returnDepartCityAirportName),
        field("return_depart_city_name", &RTFlightsSummary::returnDepartCityName),
        field("return_depart_country", &RTFlightsSummary::returnDepartCountry),
        field("return_dest_city_airport_code", &RTFlightsSummary::returnDestCityAirportCode),
        field("return_dest_city_airport_name", &RTFlightsSummary::returnDestCityAirportName),
        field("return_dest_city_name", &RTFlightsSummary::returnDestCityName),
        field("return_dest_country", &RTFlightsSummary::returnDestCountry),
        field("carrierCodeReturn", &RTFlightsSummary::carrierCodeReturn),
        field("carrierLogoReturn", &RTFlightsSummary::carrierLogoReturn),
        field("carrierNameReturn", &RTFlightsSummary::carrierNameReturn),
        field("flight_segments_outbound", &RTFlightsSummary::flightSegmentsOutbound),
        field("flight_segments_return", &RTFlightsSummary::flightSegmentsReturn));
};

} // namespace ombrivane
