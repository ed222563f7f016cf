#pragma once

#include "keyed/Keyed.h"

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
};

/// The block of one passenger.
struct TicketPassengerBlock {
    std::string title;
    std::string name;
    std::vector<TicketTravellerInfo> lines;

    bool operator==(const TicketPassengerBlock&) const = default;
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
};

template <> struct Keyed<TicketPassengerBlock> {
    static Json toJson(const TicketPassengerBlock& block) {
        Json lines = Json::array();
        for (const auto& line : block.lines) {
            lines.push_back(Json{{"leftTitle", line.leftTitle},
                                 {"leftSubTitle", line.leftSubTitle},
                                 {"rightTitle", line.rightTitle},
                                 {"rightSubTitle", line.rightSubTitle}});
        }
        return Json{{"title", block.title}, {"name", block.name}, {"lines", lines}};
    }
};

template <> struct Keyed<TicketFlightBlock> {
    static Json toJson(const TicketFlightBlock& block) {
        return Json{{"title", block.title},
                    {"departureCity", block.departureCity},
                    {"departureTime", block.departureTime},
                    {"arrivalCity", block.arrivalCity},
                    {"arrivalTime", block.arrivalTime},
                    {"date", block.date},
                    {"cabin", block.cabin},
                    {"checkIn", block.checkIn}};
    }
};

} // namespace ombrivane
