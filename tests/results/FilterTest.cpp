#include "fakes/World.h"
#include "results/FilterBottomSheetViewModel.h"
#include "results/Offers.h"
#include "results/TimeBucket.h"

#include <gtest/gtest.h>

#include <limits>

namespace ombrivane {
namespace {

using offers::keysOf;
using offers::Sketch;

OneWayOffers oneWayList(const std::vector<Sketch>& sketches) {
    OneWayOffers list;
    for (const auto& sketch : sketches)
        list.push_back(offers::decodedOneWay(offers::oneWay(sketch)));
    return list;
}

RoundTripOffers roundTripList(const std::vector<Sketch>& sketches) {
    RoundTripOffers list;
    for (const auto& sketch : sketches)
        list.push_back(offers::decodedRoundTrip(offers::roundTrip(sketch)));
    return list;
}

const std::vector<Sketch> mixed{
    {"a", 1000, "Saffron", "05:59", "NPR"},
    {"b", 1500, "Lotus", "06:40", "NPR"},
    {"c", 1500, "Saffron", "12:30", "NPR"},
    {"d", 2000, "Lotus", "18:59", "NPR"},
    {"e", 9000, "Rhino", "23:10", "USD"},
    {"f", 9500, "Saffron", "noon", "INR"},
};

class FilterTest : public testing::Test {
protected:
    fakes::World world;
    FilterBottomSheetViewModel model;
};

TEST_F(FilterTest, KeepsByAirlineThenPriceThenTimeInTheOrderOfTheList) {
    struct Case {
        double price;
        const char* airline;
        const char* time;
        const char* kept;
    };
    const Case cases[] = {
        {9500, "All Airlines", "", "abcdef"},
        {1500, "All Airlines", "", "abc"}, // as much as the price stays
        {1499, "All Airlines", "", "a"},
        {1499.99, "All Airlines", "", "a"}, // without the fraction
        {1500.99, "All Airlines", "", "abc"},
        {-1, "All Airlines", "", ""},
        {9500, "Saffron", "", "acf"},
        {9500, "saffron", "", ""},
        {9500, "Nobody", "", ""},
        {9500, "All Airlines", "earlyMorning", "abf"}, // 06:40 is both; what is no number is hour 0
        {9500, "All Airlines", "morning", "bc"},
        {9500, "All Airlines", "afternoon", "cd"},
        {9500, "All Airlines", "evening", "de"},
        {9500, "All Airlines", "night", "abcdef"},
        {1999, "Lotus", "morning", "b"},
    };
    for (const auto& [price, airline, time, kept] : cases) {
        for (const bool asRoundTrip : {false, true}) {
            FilterBottomSheetViewModel filter;
            if (asRoundTrip) filter.roundtripFlights = roundTripList(mixed);
            filter.onewayFlights = oneWayList(mixed);
            filter.applyFilter(price, airline, time);
            EXPECT_EQ(keysOf(filter.filteredRoundtripFlights.get()), asRoundTrip ? kept : "")
                << price << airline << time;
            EXPECT_EQ(keysOf(filter.filteredOnewayFlights.get()), asRoundTrip ? "" : kept)
                << price << airline << time;
        }
    }
}

TEST_F(FilterTest, HoursBelongToTheBucketsOfTheirEdges) {
    struct Case {
        const char* time;
        const char* buckets;
    };
    const Case cases[] = {
        {"00:00", "earlyMorning "},
        {"05:59", "earlyMorning "},
        {"06:00", "earlyMorning morning "},
        {"07:00", "morning "},
        {"12:30", "morning afternoon "},
        {"13:00", "afternoon "},
        {"18:59", "afternoon evening "},
        {"23:10", "evening "},
        {"31:00", "evening "},
        {"7", "morning "},
        {"7pm:00", "earlyMorning "},
        {" 9:00", "earlyMorning "},
        {"", ""},
        {":", ""},
        {":30", ""},
    };
    for (const auto& [time, buckets] : cases) {
        std::string found;
        for (const auto& bucket : timeBuckets) {
            model.onewayFlights = oneWayList({{.time = time}});
            model.applyFilter(1000, "All Airlines", bucket.key);
            if (!model.filteredOnewayFlights->empty()) found += std::string(bucket.key) + " ";
        }
        EXPECT_EQ(found, buckets) << time;
    }
}

TEST_F(FilterTest, WithoutATimeItSaysSoAndKeepsWhatThePriceLeft) {
    model.onewayFlights = oneWayList(mixed);
    model.applyFilter(9500, "All Airlines", "morning");
    EXPECT_TRUE(world.diagnostics->lines.empty());
    model.applyFilter(9500, "All Airlines", "");
    EXPECT_EQ(world.diagnostics->lines, std::vector<std::string>{"No time selected to filter"});
}

TEST_F(FilterTest, APriceThatIsNo64BitNumberIsAFault) {
    model.onewayFlights = oneWayList({{.time = "10:30"}});
    for (const double price : {std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN(),
                               9.3e18,
                               -9.3e18}) {
        EXPECT_THROW(model.applyFilter(price, "All Airlines", ""), Fault) << price;
    }
    EXPECT_NO_THROW(model.applyFilter(9.2e18, "All Airlines", ""));
    EXPECT_EQ(world.takeFaults().size(), 5U);
}

TEST_F(FilterTest, BoundsAirlinesAndCurrencyComeFromTheListInUse) {
    const auto derive = [this] {
        model.calculateMaxPrice();
        model.calculateMinPrice();
        model.collectAirlines();
        model.readCurrency();
        std::string all = std::to_string(static_cast<std::int64_t>(model.minPrice)) + "-" +
                          std::to_string(static_cast<std::int64_t>(model.maxPrice)) + " " +
                          model.currency.get();
        for (const auto& airline : model.airLines.get())
            all += " " + airline;
        return all;
    };
    EXPECT_EQ(derive(), "10000000-0 ");
    model.onewayFlights = oneWayList({mixed[2], mixed[1], mixed[0], mixed[4]});
    EXPECT_EQ(derive(), "1000-9000 USD Saffron Lotus Rhino");
    model.roundtripFlights = roundTripList({{"x", 20'000'000, "Lotus", "10:00", "INR"}});
    EXPECT_EQ(derive(), "10000000-20000000 INR Lotus") << "a dearer list shows the ceiling";
}

TEST_F(FilterTest, EmptyListsGiveAnEmptyOneWayResult) {
    model.filteredOnewayFlights = oneWayList(mixed);
    model.filteredRoundtripFlights = roundTripList(mixed);
    model.applyFilter(9500, "All Airlines", "");
    EXPECT_TRUE(model.filteredOnewayFlights->empty());
    EXPECT_EQ(model.filteredRoundtripFlights->size(), mixed.size()) << "not touched";
}

} // namespace
} // namespace ombrivane
