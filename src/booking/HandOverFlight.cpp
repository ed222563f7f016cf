#include "booking/HandOverFlight.h"

#include <array>

namespace ombrivane {
namespace {

constexpr std::array<const char*, 13> keys{"carrierCode",
                                           "carrierLogo",
                                           "carrierName",
                                           "deptDate",
                                           "deptTime",
                                           "arrivalDate",
                                           "arrivalTime",
                                           "departureAirportCode",
                                           "departureAirport",
                                           "departureCity",
                                           "arrivalAirportCode",
                                           "arrivalAirport",
                                           "arrivalCity"};

/// The fields of a summary in the order of the keys.
template <class Summary> using FlightFields = std::array<std::string Summary::*, keys.size()>;

template <class Summary>
constexpr FlightFields<Summary> outboundFields{&Summary::carrierCode,
                                               &Summary::carrierLogo,
                                               &Summary::carrierName,
                                               &Summary::deptDate,
                                               &Summary::deptTime,
                                               &Summary::destDate,
                                               &Summary::destTime,
                                               &Summary::departCityAirportCode,
                                               &Summary::departCityAirportName,
                                               &Summary::departCityName,
                                               &Summary::destCityAirportCode,
                                               &Summary::destCityAirportName,
                                               &Summary::destCityName};

constexpr FlightFields<RTFlightsSummary> returnFields{&RTFlightsSummary::carrierCodeReturn,
                                                      &RTFlightsSummary::carrierLogoReturn,
                                                      &RTFlightsSummary::carrierNameReturn,
                                                      &RTFlightsSummary::returnDeptDate,
                                                      &RTFlightsSummary::returnDeptTime,
                                                      &RTFlightsSummary::returnDestDate,
                                                      &RTFlightsSummary::returnDestTime,
                                                      &RTFlightsSummary::returnDepartCityAirportCode,
                                                      &RTFlightsSummary::returnDepartCityAirportName,
                                                      &RTFlightsSummary::returnDepartCityName,
                                                      &RTFlightsSummary::returnDestCityAirportCode,
                                                      &RTFlightsSummary::returnDestCityAirportName,
                                                      &RTFlightsSummary::returnDestCityName};

template <class Summary> Dictionary collect(const Summary& summary, const FlightFields<Summary>& fields) {
    Dictionary dictionary = Dictionary::object();
    for (std::size_t i = 0; i < keys.size(); ++i)
        dictionary[keys.at(i)] = summary.*(fields.at(i));
    return dictionary;
}

} // namespace

Dictionary handOverFlight(const FlightsSummary& summary) {
    return collect(summary, outboundFields<FlightsSummary>);
}

Dictionary handOverFlight(const RTFlightsSummary& summary) {
    return collect(summary, outboundFields<RTFlightsSummary>);
}

Dictionary handOverReturnFlight(const RTFlightsSummary& summary) { return collect(summary, returnFields); }

} // namespace ombrivane
