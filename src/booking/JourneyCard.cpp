#include "booking/JourneyCard.h"

#include "offers/OfferFormat.h"
#include "words/Words.h"

namespace ombrivane {
namespace {

constexpr Text outboundTitle = Text::flightDeparture;
constexpr Text returnTitle = Text::flightReturn;
constexpr const char* outboundIcon = "departureBlackIcon";
constexpr const char* returnIcon = "returnBlackIcon";

/// What a card holds before its availability has arrived.
JourneyCard sampleCard(Text title, const char* icon) {
    JourneyCard card;
    card.carrierLogos = {""};
    card.originCity = "Kathmandu";
    card.originCode = "KTM";
    card.destinationCity = "New York";
    card.destinationCode = "JFK";
    card.date = OfferFormat::formatDate("2022-05-26");
    card.time = "16:00 PM";
    card.duration = "23 Hr 03 Min";
    card.stops = said(Text::flightStops, {{"count", 1}});
    card.dateIcon = icon;
    card.sectionTitle = said(title);
    return card;
}

template <class Leg> LegLines linesOf(const Leg& leg) {
    LegLines lines;
    const std::string connection = displayForm(leg.segConnectionTime);
    if (connection != "false") lines.connection = said(Text::resultsConnectionTime, {{"time", connection}});
    lines.carrierLogo = leg.carrierLogo;
    lines.carrier = leg.carrierName + " > " + leg.carrierCode + "-" + leg.flightNumber;
    lines.duration = leg.segTotalFlyingHours;
    lines.departureAirport = leg.segDepartureAirport;
    lines.departure = OfferFormat::formatDate(leg.segDepartureDate) + " - " + leg.segDepartureTime;
    lines.arrivalAirport = leg.segArrivalAirport;
    lines.arrival = OfferFormat::formatDate(leg.segArrivalDate) + " - " + leg.segArrivalTime;
    return lines;
}

/// The number of legs stands for the number of stops, in the singular.
template <class Leg> void addLegs(JourneyCard& card, const std::vector<Leg>& legs) {
    card.carrierLogos.clear();
    for (const Leg& leg : legs) {
        card.carrierLogos.push_back(leg.carrierLogo);
        card.legs.push_back(linesOf(leg));
    }
    card.stops = said(Text::flightStops, {{"count", static_cast<std::int64_t>(legs.size())}});
}

void addRoute(JourneyCard& card) {
    card.route = card.originCity + " (" + card.originCode + ") - " + card.destinationCity + " (" +
                 card.destinationCode + ")";
}

template <class Summary> JourneyCard outboundCard(const Summary& summary) {
    JourneyCard card = sampleCard(outboundTitle, outboundIcon);
    card.originCity = summary.departCityName;
    card.originCode = summary.departCityAirportCode;
    card.destinationCity = summary.destCityName;
    card.destinationCode = summary.destCityAirportCode;
    card.date = OfferFormat::formatDate(summary.deptDate);
    card.time = summary.deptTime;
    card.duration = summary.totalFlyingHours;
    return card;
}

JourneyCard returnCard(const RTFlightsSummary& summary) {
    JourneyCard card = sampleCard(returnTitle, returnIcon);
    card.originCity = summary.returnDepartCityName;
    card.originCode = summary.returnDepartCityAirportCode;
    card.destinationCity = summary.returnDestCityName;
    card.destinationCode = summary.returnDestCityAirportCode;
    card.date = OfferFormat::formatDate(summary.returnDeptDate);
    card.time = summary.returnDeptTime;
    card.duration = summary.returnTotalFlyingHours;
    return card;
}

} // namespace

std::vector<JourneyCard> journeyCards(const std::optional<FlightsSummary>& summary) {
    JourneyCard card = summary ? outboundCard(*summary) : sampleCard(outboundTitle, outboundIcon);
    if (summary) addLegs(card, summary->flightSegments);
    addRoute(card);
    return {card};
}

std::vector<JourneyCard> journeyCards(const std::optional<RTFlightsSummary>& summary) {
    JourneyCard going = summary ? outboundCard(*summary) : sampleCard(outboundTitle, outboundIcon);
    JourneyCard coming = summary ? returnCard(*summary) : sampleCard(returnTitle, returnIcon);
    if (summary) {
        addLegs(going, summary->flightSegmentsOutbound);
        addLegs(coming, summary->flightSegmentsReturn);
    }
    addRoute(going);
    addRoute(coming);
    return {going, coming};
}

} // namespace ombrivane
