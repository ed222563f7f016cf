#include "offers/OfferLines.h"

#include "dates/Day.h"
#include "offers/OfferFormat.h"
#include "words/Words.h"

namespace ombrivane {
namespace {

/// What an offer that names no class is shown as.
constexpr const char* economyCode = "M";

/// `text`, then `addition` after `joint` where there is one.
std::string joined(const std::string& text, const char* joint, const std::string& addition) {
    return addition.empty() ? text : text + joint + addition;
}

/// How many days after the departure the arrival is, as shown; empty on the same day and where either is no
/// day.
std::string daysOnTheWay(const std::string& departure, const std::string& arrival) {
    const auto from = Day::parse(departure), to = Day::parse(arrival);
    if (!from || !to || *from == *to) return "";
    const std::int64_t days = (to->days() - from->days()).count();
    return days > 0 ? said(Text::resultsArrivesLater, {{"days", days}})
                    : said(Text::resultsArrivesEarlier, {{"days", -days}});
}

SegmentLines linesOf(const Segment& segment, const std::string& cabin) {
    SegmentLines lines;
    lines.carrierLogo = segment.carrierLogo;
    lines.carrier =
        joined(segment.carrierName + " > " + segment.carrierCode + "-" + segment.flightNumber, " - ", cabin);
    const std::string marketing = segment.carrierCodeMarketingName.value_or("");
    if (segment.carrierCodeMarketing && *segment.carrierCodeMarketing != segment.carrierCode &&
        !marketing.empty()) {
        lines.operatedBy = said(Text::resultsOperatedBy, {{"carrier", marketing}});
    }
    lines.from = joined(segment.airportDeparture.name, ", ", segment.airportDeparture.country.value_or(""));
    lines.departure = OfferFormat::formatDate(segment.dateOfDeparture) + ", " + segment.timeOfDeparture;
    lines.to = joined(segment.airportArrival.name, ", ", segment.airportArrival.country.value_or(""));
    lines.arrival = OfferFormat::formatDate(segment.dateOfArrival) + ", " + segment.timeOfArrival;
    const std::string connection = displayForm(segment.connectionTime);
    if (connection != "false") lines.connection = said(Text::resultsConnectionTime, {{"time", connection}});
    return lines;
}

template <class Journey>
JourneyLines foldedJourney(const Journey& journey, const std::optional<std::string>& bookingClass,
                           const std::string& refundability, const BaggageDetails& baggage) {
    JourneyLines lines;
    lines.carrierLogo = journey.carrierLogo;
    lines.carrierName = journey.carrierName;
    lines.refundability = refundability;
    lines.cabin = OfferFormat::cabinClassName(bookingClass.value_or(economyCode));
    lines.departureLocation = journey.locationDeparture;
    lines.departureTime = journey.timeOfDeparture;
    lines.departureDate = OfferFormat::formatDate(journey.dateOfDeparture);
    lines.duration = journey.totalFlyingHours;
    lines.noOfSegments = static_cast<int>(journey.segments.size());
    lines.lineImage = segmentLineImage(journey.segments.size());
    lines.arrivalLocation = journey.locationArrival;
    lines.arrivalTime = journey.timeOfArrival;
    lines.arrivalDate = OfferFormat::formatDate(journey.dateOfArrival);
    lines.arrivalDays = daysOnTheWay(journey.dateOfDeparture, journey.dateOfArrival);
    lines.cabinBaggage = displayForm(baggage.cabin);
    lines.checkInBaggage = displayForm(baggage.baggage);
    lines.departureCountry = journey.airportDeparture.country.value_or("Kathmandu");
    lines.arrivalCountry = journey.airportArrival.country.value_or("New York");
    return lines;
}

template <class Journey> void unfold(JourneyLines& lines, const Journey& journey) {
    for (const auto& segment : journey.segments)
        lines.segments.push_back(linesOf(segment, lines.cabin));
}

} // namespace

OfferLines foldedLines(const FlightSearchOneWay& offer) {
    const auto& summary = offer.searchSummary;
    return {OfferFormat::price(summary.currency, offer.fareInformation.totalCost),
            {foldedJourney(offer.flightSummary,
                           summary.bookingClass,
                           summary.refundable.value_or(said(Text::resultsNonRefundable)),
                           offer.baggageDetails)}};
}

OfferLines foldedLines(const FlightSearchRoundTrip& offer) {
    const auto& summary = offer.searchSummary;
    const auto& baggage = offer.baggageDetails;
    return {OfferFormat::price(summary.currency, offer.fareInformation.totalCost),
            {foldedJourney(offer.flightDepartureSummary,
                           summary.bookingClass,
                           said(Text::resultsNonRefundable),
                           baggage.outbound),
             foldedJourney(offer.flightReturnSummary,
                           summary.bookingClass,
                           said(Text::resultsNonRefundable),
                           baggage.return_)}};
}

OfferLines linesOf(const FlightSearchOneWay& offer) {
    auto lines = foldedLines(offer);
    unfold(lines.journeys[0], offer.flightSummary);
    return lines;
}

OfferLines linesOf(const FlightSearchRoundTrip& offer) {
    auto lines = foldedLines(offer);
    unfold(lines.journeys[0], offer.flightDepartureSummary);
    unfold(lines.journeys[1], offer.flightReturnSummary);
    return lines;
}

OfferLines placeholderLines(std::size_t journeys) {
    JourneyLines lines;
    lines.carrierLogo = "dummyurl";
    lines.carrierName = said(Text::loading);
    lines.refundability = said(Text::resultsNonRefundable);
    lines.cabin = OfferFormat::cabinClassName(economyCode);
    lines.departureLocation = "KTM";
    lines.departureTime = "16:00";
    lines.departureDate = OfferFormat::formatDate("2022-05-26");
    lines.duration = "28 Hr 0 Min";
    lines.lineImage = segmentLineImage(0);
    lines.arrivalLocation = "JFK";
    lines.arrivalTime = "08:00";
    lines.arrivalDate = OfferFormat::formatDate("2022-05-29");
    lines.cabinBaggage = displayForm(Weight::integer(0));
    lines.checkInBaggage = lines.cabinBaggage;
    return {"NPR 88,222", std::vector<JourneyLines>(journeys, lines)};
}

std::string segmentLineImage(std::size_t noOfSegments) {
    return noOfSegments < 2 ? "segmentStraightLine" : "segmentDottedLine";
}

} // namespace ombrivane
