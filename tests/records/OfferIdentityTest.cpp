#include "fakes/TestData.h"
#include "records/Airport.h"
#include "records/Decode.h"
#include "records/FlightSearchOneWay.h"
#include "records/Hash.h"
#include "records/UniquePassanger.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace ombrivane {
namespace {

TEST(OfferIdentityTest, RawDataTakesPartInEqualityAndHash) {
    const std::string json = fakes::captured("search-oneway").at("data").at(0).dump();
    auto offer = decodeText<FlightSearchOneWay>(json);
    EXPECT_FALSE(offer.rawData);
    auto stored = offer;
    const auto bytes = std::make_shared<std::string>("{}");
    stored.rawData = RawData(bytes, *bytes);
    EXPECT_NE(offer, stored);
    EXPECT_NE(std::hash<FlightSearchOneWay>{}(offer), std::hash<FlightSearchOneWay>{}(stored));
    // Equal bytes are enough: it is not the buffer that counts.
    const auto others = std::make_shared<std::string>("{}");
    offer.rawData = RawData(others, *others);
    EXPECT_EQ(offer, stored);
    EXPECT_EQ(std::hash<FlightSearchOneWay>{}(offer), std::hash<FlightSearchOneWay>{}(stored));
}

TEST(KeyOrderTest, KeysInAnyOrderMeanTheSameAndTheFirstOfTwoCounts) {
    const auto decoded = [](const char* json) {
        const auto airport = decodeText<Airport>(json);
        return airport.name + "|" + airport.city + "|" + airport.code + "|" +
               airport.country.value_or("none");
    };
    const struct {
        const char* json;
        const char* expected;
    } rows[] = {
        {R"({"name":"n","city":"c","code":"k","country":"l"})", "n|c|k|l"},
        {R"({"country":"l","code":"k","city":"c","name":"n"})", "n|c|k|l"},
        {R"({"x":{"name":"other"},"code":"k","name":"n","y":[],"city":"c"})", "n|c|k|none"},
        {R"({"name":"n","name":"again","city":"c","code":"k","city":"again"})", "n|c|k|none"},
        {R"({"code":"k","name":"n","city":"c","code":"again","country":"l","country":"again"})", "n|c|k|l"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(decoded(row.json), row.expected) << row.json;
}

TEST(UniquePassangerTest, SlotsRunOverAdultsChildrenAndInfants) {
    AvailabilitySummary summary;
    summary.numberAdult = 2;
    summary.numberChild = 1;
    summary.numberInfant = 1;
    const auto slots = passengerSlots(summary);
    const std::pair<int, const char*> expected[] = {{1, "Adult"}, {2, "Adult"}, {3, "Child"}, {4, "Infant"}};
    ASSERT_EQ(slots.size(), std::size(expected));
    for (std::size_t i = 0; i < slots.size(); ++i) {
        EXPECT_EQ(slots[i].count, expected[i].first);
        EXPECT_EQ(slots[i].type, expected[i].second);
    }
    std::unordered_set<UniquePassanger> everyone(slots.begin(), slots.end());
    for (const auto& slot : passengerSlots(summary))
        everyone.insert(slot);
    EXPECT_EQ(everyone.size(), 8U) << "a list built again has other identities";
    EXPECT_TRUE(passengerSlots(std::nullopt).empty());
}

} // namespace
} // namespace ombrivane
