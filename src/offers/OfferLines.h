#pragma once

#include "keyed/Shown.h"
#include "records/AnyFlight.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One segment of an unfolded offer, as it is shown.
struct SegmentLines {
    std::string carrierLogo;
    std::string carrier;
    std::string operatedBy; ///< empty: no such line
    std::string from;
    std::string departure;
    std::string to;
    std::string arrival;
    std::string connection; ///< empty: no connection follows

    bool operator==(const SegmentLines&) const = default;

    static constexpr auto shown =
        table(entry("carrierLogo", &SegmentLines::carrierLogo), entry("carrier", &SegmentLines::carrier),
              entry("operatedBy", &SegmentLines::operatedBy), entry("from", &SegmentLines::from),
              entry("departure", &SegmentLines::departure), entry("to", &SegmentLines::to),
              entry("arrival", &SegmentLines::arrival), entry("connection", &SegmentLines::connection));
};

/// One journey of an offer, as its card shows it.
struct JourneyLines {
    std::string carrierLogo;
    std::string carrierName;
    std::string refundability;
    std::string cabin;
    std::string departureLocation;
    std::string departureTime;
    std::string departureDate;
    std::string duration;
    int noOfSegments = 0;
    std::string lineImage; ///< of `PlaneShowingSegmentsView`
    std::string arrivalLocation;
    std::string arrivalTime;
    std::string arrivalDate;
    std::string arrivalDays; ///< "+1" where it is another day than that of departure, else empty
    std::string cabinBaggage;
    std::string checkInBaggage;
    std::string departureCountry;
    std::string arrivalCountry;
    std::vector<SegmentLines> segments;

    bool operator==(const JourneyLines&) const = default;

    static constexpr auto shown = table(
        entry("carrierLogo", &JourneyLines::carrierLogo), entry("carrierName", &JourneyLines::carrierName),
        entry("refundability", &JourneyLines::refundability), entry("cabin", &JourneyLines::cabin),
        entry("departureLocation", &JourneyLines::departureLocation),
        entry("departureTime", &JourneyLines::departureTime),
        entry("departureDate", &JourneyLines::departureDate), entry("duration", &JourneyLines::duration),
        entry("noOfSegments", &JourneyLines::noOfSegments), entry("lineImage", &JourneyLines::lineImage),
        entry("arrivalLocation", &JourneyLines::arrivalLocation),
        entry("arrivalTime", &JourneyLines::arrivalTime), entry("arrivalDate", &JourneyLines::arrivalDate),
        entry("arrivalDays", &JourneyLines::arrivalDays), entry("cabinBaggage", &JourneyLines::cabinBaggage),
        entry("checkInBaggage", &JourneyLines::checkInBaggage),
        entry("departureCountry", &JourneyLines::departureCountry),
        entry("arrivalCountry", &JourneyLines::arrivalCountry), entry("segments", &JourneyLines::segments));
};

/// An offer as its card shows it: one journey, or on a round trip two.
struct OfferLines {
    std::string price;
    std::vector<JourneyLines> journeys;

    bool operator==(const OfferLines&) const = default;
};

/// The lines of `offer`. A date of another form than "yyyy-MM-dd" stands as it was sent.
OfferLines linesOf(const FlightSearchOneWay& offer);
OfferLines linesOf(const FlightSearchRoundTrip& offer);

/// The same without the segments, which are shown only when the card is unfolded.
OfferLines foldedLines(const FlightSearchOneWay& offer);
OfferLines foldedLines(const FlightSearchRoundTrip& offer);

/// The sample content of a card whose offer has not arrived, drawn under the shimmer.
OfferLines placeholderLines(std::size_t journeys);

/// The line that carries the plane: straight for a direct flight, dotted for a connection.
std::string segmentLineImage(std::size_t noOfSegments);

} // namespace ombrivane
