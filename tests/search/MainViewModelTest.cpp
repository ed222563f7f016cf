#include "search/MainViewModel.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

class MainViewModelTest : public testing::Test {
protected:
    fakes::World world;
    MainViewModel& model = MainViewModel::shared();
};

TEST_F(MainViewModelTest, SwapsFourPairsInOrderHavingReadAllOfThem) {
    struct Place {
        Field<std::string>& field;
        const char* before;
        const char* after;
    };
    const Place places[] = {{model.originText, "KTM - Kathmandu", "DOH - Doha"},
                            {model.destinationText, "DOH - Doha", "KTM - Kathmandu"},
                            {model.departCity, "Kathmandu", "Doha"},
                            {model.destCity, "Doha", "Kathmandu"},
                            {model.departCityCode, "KTM", "DOH"},
                            {model.destCityCode, "DOH", "KTM"},
                            {model.departCountry, "Nepal", "Qatar"},
                            {model.destCountry, "Qatar", "Nepal"}};
    std::vector<std::string> order;
    std::vector<Subscription> subscriptions;
    for (const auto& place : places) {
        place.field.set(place.before);
        subscriptions.push_back(
            place.field.observe([&order, &place] { order.emplace_back(place.field.key()); }));
    }
    model.swapLocations();
    std::vector<std::string> declared;
    for (const auto& place : places) {
        EXPECT_EQ(place.field.get(), place.after) << place.field.key();
        declared.emplace_back(place.field.key());
    }
    EXPECT_EQ(order, declared);
}

TEST_F(MainViewModelTest, EachFieldThatASearchNeedsIsMissedAloneAndNoOther) {
    Published<std::string> MainViewModel::*const needed[] = {&MainViewModel::departCity,
                                                             &MainViewModel::destCity,
                                                             &MainViewModel::departureDateText,
                                                             &MainViewModel::nationality};
    const auto fill = [&] {
        for (const auto field : needed)
            (model.*field) = "x";
    };
    fill();
    EXPECT_FALSE(model.isMissingFields()) << "neither texts nor codes nor the nationality's name are needed";
    for (const auto field : needed) {
        fill();
        (model.*field) = "";
        EXPECT_TRUE(model.isMissingFields()) << (model.*field).key();
    }
}

TEST_F(MainViewModelTest, TheTextOfTheReturnDateCountsNotTheDate) {
    EXPECT_EQ(model.departureDate->text(), "2026-11-21");
    EXPECT_EQ(model.returnDate->text(), "2026-11-24");
    EXPECT_TRUE(model.isMissingReturnDate());
    model.returnDateText = "Tue, Nov 24, 2026";
    EXPECT_FALSE(model.isMissingReturnDate());

    model.departureDate = Day::parse("2026-12-30").value();
    model.setDefaultReturnDate();
    EXPECT_EQ(model.returnDate.get(), Day::parse("2027-01-02"));
    EXPECT_EQ(model.returnDateText.get(), "Tue, Nov 24, 2026");
}

TEST_F(MainViewModelTest, CabinClassesHaveCodesByTheirExactNames) {
    for (const auto& [name, code] : std::vector<std::pair<std::string, std::string>>{{"Economy", "M"},
                                                                                     {"Premium Economy", "W"},
                                                                                     {"Business", "C"},
                                                                                     {"First Class", "F"},
                                                                                     {"All Class", ""},
                                                                                     {"economy", ""},
                                                                                     {"", ""}}) {
        model.cabinClass = name;
        EXPECT_EQ(model.cabinClassCode(), code) << name;
    }
}

} // namespace
} // namespace ombrivane
