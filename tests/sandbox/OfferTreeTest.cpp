#include "tests/sandbox/ServiceClient.h"

#include "sandbox/world/Logos.h"

#include <gtest/gtest.h>
#include <png.h>

#include <map>
#include <sstream>

namespace ombrivane::sandbox {

namespace {

/// The records of an offer. A word is a key and its type; "!" marks what no offer may lack. Types: t text, i
/// whole number, d number, q whole number or text, b true/false or text, t* texts, a record, a record with *
/// for a list.
const std::map<std::string, std::string>& records() {
    static const std::string journey =
        "FlightId:t booking_class:t journeyKey:t fareKey:t dateOfDeparture:t! timeOfDeparture:t! "
        "dateOfArrival:t! "
        "timeOfArrival:t! timeOfDepartureSystem:t timeOfArrivalSystem:t locationDeparture:t! "
        "airportDeparture:Airport! "
        "locationArrival:t! airportArrival:Airport! carrierName:t! carrierCode:t! carrierLogo:t! "
        "carrierCodeMarketing:t carrierCodeMarketingName:t segments:Segment*! total_flying_hours:t! fares:";
    static const std::map<std::string, std::string> known{
        {"OneWay",
         "search_summary:Summary! fare_information:Fare! baggage_details:Baggage! flight_summary:Flight! "
         "booking_class:t seats_left:i!"},
        {"RoundTrip",
         "search_summary:RoundSummary! fare_information:Fare! baggage_details:RoundBaggage! "
         "flight_departure_summary:RoundFlight! flight_return_summary:RoundFlight! seats_left:i!"},
        {"Summary",
         "search_key:t! source_id:t! currency:t! validating_carrier:t! rbd:t* booking_class:t "
         "ticketing_currency:t FreeBaggage:q FlightNo:t refundable:t"},
        {"RoundSummary",
         "search_key:t! source_id:t! currency:t! validating_carrier:t! rbd_outbound:t* rbd_return:t* "
         "booking_class:t ticketing_currency:t"},
        {"Fare", "total_adt:i total_chd:i total_inf:i total_cost:i! fare_token:t cashBack:d"},
        {"Baggage", "cabin:q! baggage:q!"},
        {"RoundBaggage", "outbound:Baggage! return:Baggage!"},
        {"Flight", journey + "Fares"},
        {"RoundFlight", journey + "RoundFares"},
        {"Airport", "name:t! city:t! code:t! country:t!"},
        {"Segment",
         "dateOfDeparture:t! timeOfDeparture:t! dateOfArrival:t! timeOfArrival:t! timeOfDepartureSystem:t "
         "timeOfArrivalSystem:t locationDeparture:t! airportDeparture:Airport! locationArrival:t! "
         "airportArrival:Airport! departure_terminal:t destination_terminal:t carrierName:t! carrierCode:t! "
         "carrierLogo:t! carrierCodeMarketing:t carrierCodeMarketingName:t total_flying_hours:t! "
         "flightNumber:t! "
         "equipmentType:t rph:t connection_time:b! segment_details:Details meal_code:t"},
        {"Details",
         "attributes:DetailsKeys! airCodeshareInfo:Codeshare! airAirAvailInfo:Avail! "
         "airFlightDetailsRef:DetailsRef! segment_ref:SegmentRef!"},
        {"DetailsKeys",
         "Key:t! Group:t! Carrier:t! FlightNumber:t! Origin:t! Destination:t! DepartureTime:t! "
         "ArrivalTime:t! FlightTime:t! Equipment:t! Status:t! SupplierCode:t! ChangeOfPlane:t! "
         "OptionalServicesIndicator:t! APISRequirementsRef:t!"},
        {"Codeshare", "attributes:CodeshareKeys! value:t!"},
        {"CodeshareKeys", "OperatingCarrier:t! OperatingFlightNumber:t!"},
        {"Avail", "attributes:AvailKeys! value:t!"},
        {"AvailKeys", "ProviderCode:t!"},
        {"DetailsRef", "attributes:DetailsRefKeys! value:t!"},
        {"DetailsRefKeys", "Key:t!"},
        {"SegmentRef",
         "BookingCode:t! BookingCount:t! CabinClass:t! FareInfoRef:t! SegmentRef:t! HostTokenRef:t! "
         "hostToken:t!"},
        {"Fares", "ADT:Adt! INF:Adt! CNN:Adt!"},
        {"RoundFares", "ADT:Adt*! INF:Adt*! CNN:Adt*!"},
        {"Adt", "attributes:AdtKeys! airFareRuleKey:RuleKey! airBrand:Brand!"},
        {"AdtKeys",
         "Key:t! FareBasis:t! PassengerTypeCode:t! Origin:t! Destination:t! EffectiveDate:t! "
         "PromotionalFare:t! FareFamily:t! SupplierCode:t!"},
        {"RuleKey", "attributes:RuleKeys! value:t!"},
        {"RuleKeys", "FareInfoRef:t! ProviderCode:t!"},
        {"Brand", "attributes:BrandKeys! airUpsellBrand:Upsell!"},
        {"BrandKeys", "Key:t! BrandID:t! UpSellBrandID:t!"},
        {"Upsell", "attributes:UpsellKeys! value:t!"},
        {"UpsellKeys", "FareBasis:t! FareInfoRef:t!"},
    };
    return known;
}

/// Checks a tree against the records and notes every key and JSON type that it saw.
class TreeCheck {
public:
    void record(const Json& tree, const std::string& name, const std::string& path) {
        ASSERT_TRUE(tree.is_object()) << path;
        std::istringstream words(records().at(name));
        std::size_t keys = 0;
        for (std::string word; words >> word;) {
            const bool isRequired = word.back() == '!';
            if (isRequired) word.pop_back();
            const std::string key = word.substr(0, word.find(':'));
            if (!tree.contains(key)) {
                EXPECT_FALSE(isRequired) << path << "." << key;
                continue;
            }
            ++keys;
            seen[name + "." + key + ":" + tree[key].type_name()]++;
            value(tree[key], word.substr(word.find(':') + 1), path + "." + key);
        }
        EXPECT_EQ(keys, tree.size()) << path << " has keys that no record has";
    }

    std::map<std::string, int> seen;

private:
    void value(const Json& tree, std::string type, const std::string& path) {
        if (type.back() == '*') {
            type.pop_back();
            ASSERT_TRUE(tree.is_array() && !tree.empty()) << path;
            for (const Json& element : tree)
                value(element, type, path + "[]");
        } else if (type.size() > 1) {
            record(tree, type, path);
        } else {
            const bool fits = (type == "t" && tree.is_string()) ||
                              (type == "i" && tree.is_number_integer()) ||
                              (type == "d" && tree.is_number()) ||
                              (type == "q" && (tree.is_number_integer() || tree.is_string())) ||
                              (type == "b" && (tree.is_boolean() || tree.is_string()));
            EXPECT_TRUE(fits) << path << " is " << tree;
        }
    }
};

class OfferTreeTest : public testing::Test {
protected:
    OfferTreeTest() : client_(options()) {}

    static Options options() {
        Options options = frozenOptions();
        options.offers = 40;
        return options;
    }

    Json search(Json body) {
        body["infants"] = 1;
        body["children"] = 1;
        return client_.post("/search-flights", body).at("data");
    }

    ServiceClient client_;
    TreeCheck check_;
};

TEST_F(OfferTreeTest, OneWayOffersHaveEveryKeyOfTheirRecordsInTheRightTypes) {
    for (const Json& offer : search(searchBody("KTM", "LHR")))
        check_.record(offer, "OneWay", "offer");
    for (const auto& [name, keys] : records()) {
        if (name.starts_with("Round")) continue;
        std::istringstream words(keys);
        for (std::string word; words >> word;) {
            const std::string key = name + "." + word.substr(0, word.find(':')) + ":";
            const auto found = check_.seen.lower_bound(key);
            EXPECT_TRUE(found != check_.seen.end() && found->first.starts_with(key)) << key << " never came";
        }
    }
}

TEST_F(OfferTreeTest, MixedScalarsComeInBothTypesAndOptionalKeysNotAlways) {
    for (const Json& offer : search(searchBody("KTM", "LHR")))
        check_.record(offer, "OneWay", "offer");
    for (const char* both : {"Baggage.cabin:number",
                             "Baggage.cabin:string",
                             "Baggage.baggage:number",
                             "Baggage.baggage:string",
                             "Summary.FreeBaggage:number",
                             "Summary.FreeBaggage:string",
                             "Segment.connection_time:boolean",
                             "Segment.connection_time:string"})
        EXPECT_GT(check_.seen[both], 0) << both;
    for (const char* sometimes : {"Summary.refundable:string",
                                  "Summary.booking_class:string",
                                  "Fare.cashBack:number",
                                  "Flight.fares:object",
                                  "OneWay.booking_class:string"})
        EXPECT_LT(check_.seen[sometimes], 40) << sometimes;
}

TEST_F(OfferTreeTest, RoundTripsHaveTheirOwnRecordsAndNoKeysOfOneWay) {
    for (const Json& offer : search(roundBody("KTM", "LHR")))
        check_.record(offer, "RoundTrip", "offer");
    EXPECT_GT(check_.seen["RoundFares.ADT:array"], 0);
}

TEST_F(OfferTreeTest, ADomesticRoundTripIsTwoListsOfOneWayOffers) {
    const Json lists = search(roundBody("KTM", "BIR"));
    ASSERT_EQ(lists.size(), 2U);
    for (const Json& list : lists)
        for (const Json& offer : list)
            check_.record(offer, "OneWay", "offer");
    EXPECT_EQ(lists[0][0]["flight_summary"]["locationDeparture"], "KTM");
    EXPECT_EQ(lists[0][0]["flight_summary"]["dateOfDeparture"], "2026-03-10");
    EXPECT_EQ(lists[1][0]["flight_summary"]["locationDeparture"], "BIR");
    EXPECT_EQ(lists[1][0]["flight_summary"]["dateOfDeparture"], "2026-03-14");
}

TEST_F(OfferTreeTest, LogosArePicturesOfTheSandboxItself) {
    const Json offer = search(searchBody("KTM", "PKR"))[0];
    const std::string link = offer["flight_summary"]["carrierLogo"].get<std::string>();
    const std::string& address = client_.sandbox().address();
    ASSERT_EQ(link.substr(0, address.size()), address);
    const WireAnswer logo = client_.send({"GET", link.substr(address.size()), {}, ""});
    EXPECT_EQ(logo.header("Content-Type"), "image/png");
    EXPECT_EQ(logo.body().substr(16, 8), std::string("\0\0\0\x60\0\0\0\x60", 8)) << "96 by 96 points";
}

TEST(Logo, IsAMarkOnAColouredTileWithRoundCorners) {
    for (const Airline& airline : airlines()) {
        SCOPED_TRACE(airline.name);
        const std::string bytes = logoPng(airline);
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        ASSERT_NE(png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()), 0);
        image.format = PNG_FORMAT_RGBA;
        std::vector<std::uint8_t> points(PNG_IMAGE_SIZE(image));
        ASSERT_NE(png_image_finish_read(&image, nullptr, points.data(), 0, nullptr), 0);
        int tile = 0;
        int mark = 0;
        for (std::size_t i = 0; i < points.size(); i += 4) {
            const unsigned colour = unsigned{points[i]} << 16 | unsigned{points[i + 1]} << 8 | points[i + 2];
            tile += points[i + 3] == 255 && colour == airline.colour ? 1 : 0;
            mark += points[i + 3] == 255 && colour == 0xFFFFFF ? 1 : 0;
        }
        EXPECT_EQ(points[3], 0) << "the corner is clear";
        EXPECT_GT(tile, 3'000);
        EXPECT_GT(mark, 700);
    }
}

} // namespace

} // namespace ombrivane::sandbox
