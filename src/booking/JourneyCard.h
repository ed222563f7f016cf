#pragma once

#include "keyed/Shown.h"
#include "records/FlightsSummary.h"
#include "records/RTFlightsSummary.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One leg as the flight details show it.
struct LegLines {
    std::string connection; ///< empty: no connection before this leg
    std::string carrierLogo;
    std::string carrier;
    std::string duration;
    std::string departureAirport;
    std::string departure;
    std::string arrivalAirport;
    std::string arrival;

    bool operator==(const LegLines&) const = default;

    static constexpr auto shown = table(
        entry("connection", &LegLines::connection), entry("carrierLogo", &LegLines::carrierLogo),
        entry("carrier", &LegLines::carrier), entry("duration", &LegLines::duration),
        entry("departureAirport", &LegLines::departureAirport), entry("departure", &LegLines::departure),
        entry("arrivalAirport", &LegLines::arrivalAirport), entry("arrival", &LegLines::arrival));
};

/// One journey of an availability as the cards of a booking session show it. Without an availability it holds
/// sample values, so that a skeleton has the size of a real card.
struct JourneyCard {
    std::vector<std::string> carrierLogos; ///< one for each leg
    std::string originCity;
    std::string originCode;
    std::string destinationCity;
    std::string destinationCode;
    std::string route;
    std::string date;
    std::string time;
    std::string duration;
    std::string stops;
    std::string dateIcon;
    std::string sectionTitle;
    std::vector<LegLines> legs;

    bool operator==(const JourneyCard&) const = default;

    static constexpr auto shown =
        table(entry("sectionTitle", &JourneyCard::sectionTitle), entry("dateIcon", &JourneyCard::dateIcon),
              entry("originCity", &JourneyCard::originCity), entry("originCode", &JourneyCard::originCode),
              entry("destinationCity", &JourneyCard::destinationCity),
              entry("destinationCode", &JourneyCard::destinationCode), entry("route", &JourneyCard::route),
              entry("date", &JourneyCard::date), entry("time", &JourneyCard::time),
              entry("duration", &JourneyCard::duration), entry("stops", &JourneyCard::stops),
              entry("carrierLogos", &JourneyCard::carrierLogos), entry("legs", &JourneyCard::legs));
};

/// The journeys of an availability in order, sample values where it is absent. A date that is not
/// "yyyy-MM-dd" is a fault.
std::vector<JourneyCard> journeyCards(const std::optional<FlightsSummary>& summary);
std::vector<JourneyCard> journeyCards(const std::optional<RTFlightsSummary>& summary);

} // namespace ombrivane
