#pragma once

#include "records/AvailabilityBaggage.h"
#include "records/AvailabilitySummary.h"
#include "records/FlightsSummary.h"
#include "records/PricedFare.h"
#include "records/RTFlightsSummary.h"
#include "records/Wire.h"

#include <string>
#include <vector>

namespace ombrivane {

/// The authoritative view of an itinerary once a booking session has opened.
template <class Flights, class BaggageForm> struct FlightAvailabilityOf {
    AvailabilitySummary availabilitySummary;
    Flights flightsSummary;
    BaggageForm baggageDetails;
    PricedFare fareInformation;
    bool documentsRequired = false;            ///< travellers give a document and its picture
    std::vector<std::string> allowedDocuments; ///< wire codes

    bool operator==(const FlightAvailabilityOf&) const = default;

    static constexpr auto wire =
        fields(field("availabilitySummary", &FlightAvailabilityOf::availabilitySummary),
               field("flightsSummary", &FlightAvailabilityOf::flightsSummary),
               field("baggageDetails", &FlightAvailabilityOf::baggageDetails),
               field("fareInformation", &FlightAvailabilityOf::fareInformation),
               field("documentsRequired", &FlightAvailabilityOf::documentsRequired),
               field("allowedDocuments", &FlightAvailabilityOf::allowedDocuments));
};

using OWFlightAvailability = FlightAvailabilityOf<FlightsSummary, FlightAvailabilityBaggageDetails>;
using RTFlightAvailability = FlightAvailabilityOf<RTFlightsSummary, RTBaggageDetails>;

} // namespace ombrivane
