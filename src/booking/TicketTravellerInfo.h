#pragma once

#include "keyed/Shown.h"

#include <string>
#include <vector>

namespace ombrivane {

/// One line of a passenger block of a ticket: two labelled values.
struct TicketTravellerInfo {
    std::string leftTitle;
    std::string leftSubTitle;
    std::string rightTitle;
    std::string rightSubTitle;

    bool operator==(const TicketTravellerInfo&) const = default;

    static constexpr auto shown = table(entry("leftTitle", &TicketTravellerInfo::leftTitle),
                                        entry("leftSubTitle", &TicketTravellerInfo::leftSubTitle),
                                        entry("rightTitle", &TicketTravellerInfo::rightTitle),
                                        entry("rightSubTitle", &TicketTravellerInfo::rightSubTitle));
};

/// The block of one passenger.
struct TicketPassengerBlock {
    std::string title;
    std::string name;
    std::vector<TicketTravellerInfo> lines;

    bool operator==(const TicketPassengerBlock&) const = default;

    static constexpr auto shown =
        table(entry("title", &TicketPassengerBlock::title), entry("name", &TicketPassengerBlock::name),
              entry("lines", &TicketPassengerBlock::lines));
};

/// The block of one journey.
struct TicketFlightBlock {
    std::string title;
    std::string departureCity;
    std::string departureTime;
    std::string arrivalCity;
    std::string arrivalTime;
    std::string date;
    std::string cabin;
    std::string checkIn;

    bool operator==(const TicketFlightBlock&) const = default;

    static constexpr auto shown = table(
        entry("title", &TicketFlightBlock::title), entry("departureCity", &TicketFlightBlock::departureCity),
        entry("departureTime", &TicketFlightBlock::departureTime),
        entry("arrivalCity", &TicketFlightBlock::arrivalCity),
        entry("arrivalTime", &TicketFlightBlock::arrivalTime), entry("date", &TicketFlightBlock::date),
        entry("cabin", &TicketFlightBlock::cabin), entry("checkIn", &TicketFlightBlock::checkIn));
};

} // namespace ombrivane
