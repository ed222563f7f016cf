#pragma once

#include "records/Wire.h"

#include <string>
#include <vector>

namespace ombrivane {

/// What a ticket is known by.
struct TicketSummary {
    std::string ticketReferenceID;
    std::string tripType;
    std::string currency;
    std::string issuedDate;

    bool operator==(const TicketSummary&) const = default;

    static constexpr auto wire =
        fields(field("ticketReferenceID", &TicketSummary::ticketReferenceID),
               field("tripType", &TicketSummary::tripType), field("currency", &TicketSummary::currency),
               field("issued_date", &TicketSummary::issuedDate));
};

/// One line of a ticket.
struct FlightTicketingPassenger {
    std::string passengerType;
    std::string passengerName;
    std::string eticketNumber;
    std::string pnr;
    std::string airlinesConfirmation;

    bool operator==(const FlightTicketingPassenger&) const = default;

    static constexpr auto wire =
        fields(field("passenger_type", &FlightTicketingPassenger::passengerType),
               field("passenger_name", &FlightTicketingPassenger::passengerName),
               field("eticket_number", &FlightTicketingPassenger::eticketNumber),
               field("PNR", &FlightTicketingPassenger::pnr),
               field("airlines_confirmation", &FlightTicketingPassenger::airlinesConfirmation));
};

/// The issued ticket.
struct FlightTicketing {
    TicketSummary ticketSummary;
    std::vector<FlightTicketingPassenger> passengers;

    bool operator==(const FlightTicketing&) const = default;

    static constexpr auto wire = fields(field("ticketSummary", &FlightTicketing::ticketSummary),
                                        field("passengers", &FlightTicketing::passengers));
};

} // namespace ombrivane
