#include "tests/sandbox/ServiceClient.h"

#include "records/Decode.h"
#include "records/Encode.h"
#include "records/FlightSearchOneWay.h"
#include "records/FlightSearchRoundTrip.h"
#include "sandbox/world/Logos.h"

#include <gtest/gtest.h>
#include <png.h>

#include <set>

namespace ombrivane::sandbox {

namespace {

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
};

/// What the component's records make of an offer is all that is in it, but for two keys that it does not
/// read.
template <class Record> void expectRecords(const Json& offers) {
    for (const Json& offer : offers) {
        const std::string text = offer.dump();
        const auto read = nlohmann::json::parse(encode(decodeText<Record>(text)).dump());
        for (const auto& step : nlohmann::json::diff(read, nlohmann::json::parse(text))) {
            const std::string path = step["path"];
            EXPECT_TRUE(step["op"] == "add" &&
                        (path.ends_with("/seats_left") || path.ends_with("/meal_code")))
                << step;
        }
    }
}

TEST_F(OfferTreeTest, OffersAreTheRecordsOfTheirKindAndNothingElse) {
    expectRecords<FlightSearchOneWay>(search(searchBody("KTM", "LHR")));
    expectRecords<FlightSearchRoundTrip>(search(roundBody("KTM", "LHR")));
    const Json lists = search(roundBody("KTM", "BIR"));
    ASSERT_EQ(lists.size(), 2U);
    for (const Json& list : lists)
        expectRecords<FlightSearchOneWay>(list);
    EXPECT_EQ(lists[0][0]["flight_summary"]["locationDeparture"], "KTM");
    EXPECT_EQ(lists[0][0]["flight_summary"]["dateOfDeparture"], "2026-03-10");
    EXPECT_EQ(lists[1][0]["flight_summary"]["locationDeparture"], "BIR");
    EXPECT_EQ(lists[1][0]["flight_summary"]["dateOfDeparture"], "2026-03-14");
}

/// Which types the value at `path` has among `offers`; "none" where it is absent.
std::set<std::string> typesOf(const Json& offers, const char* path) {
    std::set<std::string> types;
    const Json::json_pointer place(path);
    for (const Json& offer : offers)
        types.insert(offer.contains(place) ? offer.at(place).type_name() : "none");
    return types;
}

TEST_F(OfferTreeTest, MixedScalarsComeInBothTypesAndOptionalKeysNotAlways) {
    const Json offers = search(searchBody("KTM", "LHR"));
    using Types = std::set<std::string>;
    const std::pair<const char*, Types> rows[]{
        {"/baggage_details/cabin", {"number", "string"}},
        {"/baggage_details/baggage", {"number", "string"}},
        {"/flight_summary/segments/0/connection_time", {"boolean", "string"}},
        {"/search_summary/FreeBaggage", {"none", "number", "string"}},
        {"/search_summary/refundable", {"none", "string"}},
        {"/search_summary/booking_class", {"none", "string"}},
        {"/fare_information/cashBack", {"none", "number"}},
        {"/flight_summary/fares", {"none", "object"}},
        {"/booking_class", {"none", "string"}}};
    for (const auto& [path, types] : rows)
        EXPECT_EQ(typesOf(offers, path), types) << path;
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
