#include "offers/OfferLines.h"

#include "fakes/World.h"
#include "offers/OfferFormat.h"
#include "results/Offers.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

class OfferLinesTest : public testing::Test {
protected:
    static OfferLines of(const Json& offer) { return linesOf(*offers::decodedOneWay(offer)); }
    /// The one segment of an offer after `change`.
    static SegmentLines segment(const std::function<void(Json&)>& change) {
        Json offer = offers::oneWay({});
        change(offer["flight_summary"]["segments"][0]);
        return of(offer).journeys.at(0).segments.at(0);
    }

    fakes::World world;
};

TEST_F(OfferLinesTest, AOneWayCardShowsItsJourney) {
    Json offer = offers::oneWay({.cost = 1234567, .time = "10:15"});
    offer["search_summary"]["booking_class"] = "C";
    offer["search_summary"]["refundable"] = "Refundable";
    offer["flight_summary"]["segments"] = {offers::segment("1h 5m"), offers::segment()};
    const OfferLines lines = of(offer);
    EXPECT_EQ(lines.price, "NPR 1,234,567");
    ASSERT_EQ(lines.journeys.size(), 1U);
    const JourneyLines& card = lines.journeys[0];
    const std::string shown[] = {card.carrierLogo,
                                 card.carrierName,
                                 card.refundability,
                                 card.cabin,
                                 card.departureLocation,
                                 card.departureTime,
                                 card.departureDate,
                                 card.duration,
                                 card.lineImage,
                                 card.arrivalLocation,
                                 card.arrivalTime,
                                 card.arrivalDate,
                                 card.arrivalDays,
                                 card.cabinBaggage,
                                 card.checkInBaggage,
                                 card.departureCountry,
                                 card.arrivalCountry};
    const std::string expected[] = {"https://logos.example/Saffron.png",
                                    "Saffron",
                                    "Refundable",
                                    "Business",
                                    "KTM",
                                    "10:15",
                                    "Tue, Dec 1, 2026",
                                    "5 Hr 5 Min",
                                    "segmentDottedLine",
                                    "DOH",
                                    "01:05",
                                    "Wed, Dec 2, 2026",
                                    "+1",
                                    "7 Kg",
                                    "30 Kg",
                                    "Nepal",
                                    "Qatar"};
    for (std::size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(shown[i], expected[i]) << i;
    EXPECT_EQ(card.noOfSegments, 2);

    const auto folded = foldedLines(*offers::decodedOneWay(offer));
    EXPECT_TRUE(folded.journeys[0].segments.empty());
    EXPECT_EQ(folded.journeys[0].noOfSegments, 2);
}

TEST_F(OfferLinesTest, WhatAnOfferLeavesOutHasItsWords) {
    Json offer = offers::oneWay({});
    for (const char* airport : {"airportDeparture", "airportArrival"})
        offer["flight_summary"][airport].erase("country");
    const auto bare = of(offer).journeys.at(0);
    EXPECT_EQ(bare.refundability + "|" + bare.cabin, "Non-Refundable|Economy");
    EXPECT_EQ(bare.departureCountry + "|" + bare.arrivalCountry, "Kathmandu|New York");
    EXPECT_EQ(bare.lineImage, "segmentStraightLine");

    offer["search_summary"]["refundable"] = "Partly";
    offer["search_summary"]["booking_class"] = "Y";
    const auto odd = of(offer).journeys.at(0);
    EXPECT_EQ(odd.refundability + "|" + odd.cabin, "Partly|");
}

TEST_F(OfferLinesTest, AnArrivalOnAnotherDaySaysHowFarThatIs) {
    const char* const rows[][3]{{"2026-12-31", "2026-12-31", ""},
                                {"2026-12-31", "2027-01-02", "+2"},
                                {"2026-12-31", "2026-12-30", "−1"}, // over the date line
                                {"2026-12-31", "soon", ""}};
    for (const auto& [departure, arrival, shown] : rows) {
        Json offer = offers::oneWay({});
        offer["flight_summary"]["dateOfDeparture"] = departure;
        offer["flight_summary"]["dateOfArrival"] = arrival;
        EXPECT_EQ(of(offer).journeys.at(0).arrivalDays, shown) << departure << " to " << arrival;
    }
}

TEST_F(OfferLinesTest, ASegmentShowsCarrierPlacesAndTimes) {
    const SegmentLines lines = segment([](Json&) {});
    EXPECT_EQ(lines.carrier, "Saffron > SF-12 - Economy");
    EXPECT_EQ(lines.from, "Kathmandu Airport, Nepal");
    EXPECT_EQ(lines.departure, "Tue, Dec 1, 2026, 10:15");
    EXPECT_EQ(lines.to, "Doha Airport, Qatar");
    EXPECT_EQ(lines.arrival, "Wed, Dec 2, 2026, 01:05");
}

TEST_F(OfferLinesTest, OperatedByStandsOnlyForAnotherMarketingCarrier) {
    struct Case {
        Json code;
        Json name;
        const char* line;
    };
    for (const auto& [code, name, line] : {Case{nullptr, "Lotus", ""},
                                           Case{"SF", "Lotus", ""},
                                           Case{"LT", nullptr, ""},
                                           Case{"LT", "Lotus", "Operated by Lotus"}}) {
        const auto lines = segment([&code = code, &name = name](Json& json) {
            if (!code.is_null()) json["carrierCodeMarketing"] = code;
            json.erase("carrierCodeMarketingName");
            if (!name.is_null()) json["carrierCodeMarketingName"] = name;
        });
        EXPECT_EQ(lines.operatedBy, line) << code << name;
    }
}

TEST_F(OfferLinesTest, WhatASegmentLeavesOutLeavesNoPunctuationBehind) {
    Json offer = offers::oneWay({});
    offer["search_summary"]["booking_class"] = "Y";
    Json& json = offer["flight_summary"]["segments"][0];
    for (const char* airport : {"airportDeparture", "airportArrival"})
        json[airport].erase("country");
    const auto lines = of(offer).journeys.at(0).segments.at(0);
    EXPECT_EQ(lines.carrier + "|" + lines.from + "|" + lines.to,
              "Saffron > SF-12|Kathmandu Airport|Doha Airport");
}

TEST_F(OfferLinesTest, OnlyTheValueFalseHidesTheConnection) {
    struct Case {
        Json time;
        const char* line;
    };
    for (const auto& [time, line] : {Case{false, ""},
                                     Case{true, "Connection Time : true"},
                                     Case{"2h 10m", "Connection Time : 2h 10m"},
                                     Case{"false", ""}}) {
        EXPECT_EQ(segment([&time = time](Json& json) { json["connection_time"] = time; }).connection, line)
            << time;
    }
}

TEST_F(OfferLinesTest, ARoundTripShowsBothJourneysUnderOnePrice) {
    Json offer = offers::roundTrip({.cost = 88222});
    offer["flight_return_summary"]["segments"] = {offers::segment("1h"), offers::segment()};
    const OfferLines lines = linesOf(*offers::decodedRoundTrip(offer));
    EXPECT_EQ(lines.price, "NPR 88,222");
    ASSERT_EQ(lines.journeys.size(), 2U);
    EXPECT_EQ(lines.journeys[0].carrierName + lines.journeys[1].carrierName, "SaffronReturning");
    EXPECT_EQ(lines.journeys[0].cabinBaggage + lines.journeys[0].checkInBaggage, "7 Kg20 Kg");
    EXPECT_EQ(lines.journeys[1].cabinBaggage + lines.journeys[1].checkInBaggage, "5 Kg30 Kg");
    EXPECT_EQ(lines.journeys[1].refundability, "Non-Refundable");
    EXPECT_EQ(lines.journeys[0].segments.size() * 10 + lines.journeys[1].segments.size(), 12U);
}

TEST_F(OfferLinesTest, APlaceholderIsACardWithSampleContent) {
    const OfferLines lines = placeholderLines(2);
    EXPECT_EQ(lines.price, "NPR 88,222");
    ASSERT_EQ(lines.journeys.size(), 2U);
    const JourneyLines& card = lines.journeys[1];
    EXPECT_EQ(card.carrierName + "|" + card.refundability + "|" + card.cabin,
              "Loading ...|Non-Refundable|Economy");
    EXPECT_EQ(card.departureLocation + " " + card.departureTime + " " + card.departureDate,
              "KTM 16:00 Thu, May 26, 2022");
    EXPECT_EQ(card.arrivalLocation + " " + card.arrivalTime + " " + card.arrivalDate,
              "JFK 08:00 Sun, May 29, 2022");
    EXPECT_EQ(card.duration + "|" + card.cabinBaggage + "|" + card.checkInBaggage, "28 Hr 0 Min|0 Kg|0 Kg");
}

TEST_F(OfferLinesTest, ADateThatIsNoneIsShownAsItWasSent) {
    for (const char* date : {"", "01-12-2026", "2027-02-30", "2027-1-1", "2027-01-10T00:00"}) {
        Json offer = offers::oneWay({});
        offer["flight_summary"]["dateOfDeparture"] = date;
        EXPECT_EQ(of(offer).journeys[0].departureDate, date);
    }
}

TEST_F(OfferLinesTest, NumbersAndDatesFollowTheDevice) {
    world.localization->localeName = "de_DE";
    EXPECT_EQ(OfferFormat::price("NPR", 88222), "NPR 88.222");
    EXPECT_EQ(OfferFormat::formatDate("2026-12-01"), "Di., Dez. 1, 2026");
}

} // namespace
} // namespace ombrivane
