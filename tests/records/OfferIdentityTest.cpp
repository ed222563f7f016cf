#include "fakes/TestData.h"
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
