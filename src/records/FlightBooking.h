#pragma once

#include "records/PricedFare.h"
#include "records/Wire.h"

#include <string>
#include <vector>

namespace ombrivane {

/// One person as the service booked them.
struct FlightBookingPassenger {
    std::string passengerID;
    std::string passengerType;
    std::string passengerName;

    bool operator==(const FlightBookingPassenger&) const = default;

    static constexpr auto wire = fields(field("passenger_id", &FlightBookingPassenger::passengerID),
                                        field("passenger_type", &FlightBookingPassenger::passengerType),
                                        field("passenger_name", &FlightBookingPassenger::passengerName));
};
using BookingSummaryPassenger = FlightBookingPassenger;

/// The answer to a reservation and to an upload of documents.
struct FlightBooking {
    std::string bookingReferenceID;
    std::string pnr;
    std::string tripType;
    std::string currency;
    FlightBookingFareInformation fareInformation;
    std::vector<FlightBookingPassenger> passengers;

    bool operator==(const FlightBooking&) const = default;

    static constexpr auto wire = fields(
        field("bookingReferenceID", &FlightBooking::bookingReferenceID), field("PNR", &FlightBooking::pnr),
        field("tripType", &FlightBooking::tripType), field("currency", &FlightBooking::currency),
        field("fareInformation", &FlightBooking::fareInformation),
        field("passengers", &FlightBooking::passengers));
};

/// The answer to a confirmed payment.
struct BookingSummary {
    std::string bookingReferenceID;
    std::string pnr;
    std::string tripType;
    std::string currency;
    std::vector<BookingSummaryPassenger> passengers;

    bool operator==(const BookingSummary&) const = default;

    static constexpr auto wire = fields(
        field("bookingReferenceID", &BookingSummary::bookingReferenceID), field("PNR", &BookingSummary::pnr),
        field("tripType", &BookingSummary::tripType), field("currency", &BookingSummary::currency),
        field("passengers", &BookingSummary::passengers));
};

} // namespace ombrivane
