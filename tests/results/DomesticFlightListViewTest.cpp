#include "results/DomesticFlightListView.h"

#include "results/ResultsFixture.h"

#include <limits>

namespace ombrivane {
namespace {

using offers::keysOf;
using offers::listOf;

class DomesticFlightListViewTest : public ResultsFixture<DomesticFlightListView> {
protected:
    /// A round search answered: two offers to go, two to return.
    void openRound(std::int64_t going = 4000, std::int64_t coming = 5000) {
        open(true);
        answer(
            Json::array({listOf({{"b", going + 10, "Lotus"}, {"a", going, "Saffron", "06:40"}}),
                         listOf({{"y", coming + 10, "Rhino"}, {"x", coming, "Saffron", "10:15", "USD"}})}));
    }
    void chooseBoth() {
        tapItem(0);
        screen->tapReturningFlights();
        tapItem(0);
    }
    std::string chosen() {
        const auto one = [](const std::optional<AnyFlight>& flight) {
            return flight ? flight->oneWay().searchSummary.searchKey : std::string("-");
        };
        return one(model().flight) + one(model().returnFlight);
    }
};

TEST_F(DomesticFlightListViewTest, ARoundSearchBringsTwoSortedListsOnTwoTabs) {
    openRound();
    EXPECT_EQ(sent("trip_type"), "round") << "the pair is special only later";
    EXPECT_EQ(keysOf(model().departureFlights.get()) + keysOf(model().filteredDepartureFlights.get()),
              "abab");
    EXPECT_EQ(keysOf(model().returnFlights.get()) + keysOf(model().filteredReturnFlights.get()), "xyxy");
    EXPECT_FALSE(model().isLoading);
    EXPECT_TRUE(screen->showsTabs.get());
    EXPECT_EQ(list()->title.get(), "Departing Flights");
    EXPECT_EQ(keysOf(list()->offers.get()), "ab");
    tapItem(0);
    screen->tapReturningFlights();
    EXPECT_EQ(list()->title.get(), "Returning Flights");
    EXPECT_EQ(keysOf(list()->offers.get()), "xy");
    screen->tapDepartingFlights();
    EXPECT_EQ(keysOf(list()->offers.get()), "ab");
}

TEST_F(DomesticFlightListViewTest, OneWayIsOneListWithAStripAndNoTabs) {
    open();
    answer(listOf({{"b", 20, "Lotus"}, {"a", 10}, {"c", 20, "Lotus"}}));
    EXPECT_EQ(keysOf(list()->offers.get()), "abc");
    EXPECT_EQ(list()->strip.size(), 2U);
    EXPECT_FALSE(screen->showsTabs.get() || screen->tapReturningFlights.isEnabled());
    tapItem(1);
    EXPECT_EQ(screen->total.get(), "NPR 20");
    EXPECT_TRUE(model().flightSelected && screen->showDepartureFlightSegmant);
}

TEST_F(DomesticFlightListViewTest, ABadOfferInEitherListFailsTheWholeSearch) {
    for (const std::size_t bad : {0U, 1U}) {
        open(true);
        Json lists = Json::array({listOf({{"a"}}), listOf({{"x"}})});
        lists[bad].push_back(Json::object());
        answer(lists);
        EXPECT_TRUE(model().isLoading);
        EXPECT_TRUE(model().departureFlights->empty() && model().returnFlights->empty());
    }
}

TEST_F(DomesticFlightListViewTest, TheReturnTabWantsADepartureFirst) {
    openRound();
    screen->tapReturningFlights();
    EXPECT_EQ(message(), "Please select a flight first.");
    EXPECT_EQ(model().index.get(), 0);
    tapItem(0);
    screen->tapReturningFlights();
    EXPECT_EQ(model().index.get(), 1);
}

TEST_F(DomesticFlightListViewTest, EachListChoosesInItsOwnFields) {
    openRound();
    tapItem(0);
    EXPECT_EQ(chosen(), "a-");
    EXPECT_TRUE(model().departureFlightSelected && screen->showDepartureFlightSegmant);
    EXPECT_TRUE(model().showContinueButton);
    screen->tapReturningFlights();
    EXPECT_FALSE(item(0)->isUnfolded.get());
    tapItem(1);
    EXPECT_EQ(chosen(), "ay");
    EXPECT_TRUE(model().returnFlightSelected && screen->showReturnFlightSegmant);
    tapItem(1);
    EXPECT_EQ(chosen(), "a-");
    EXPECT_TRUE(model().showContinueButton) << "the return list has no say in the button";
    screen->tapDepartingFlights();
    EXPECT_TRUE(item(0)->isChosen.get() && item(0)->isUnfolded.get());
    tapItem(0);
    EXPECT_FALSE(model().showContinueButton);
    EXPECT_FALSE(model().flightSelected) << "that one is the one-way list's";
}

TEST_F(DomesticFlightListViewTest, TabsTellWhatIsChosenAndTheTotalItsParts) {
    const auto tabs = [this] { return screen->departingLabel.get() + " | " + screen->returningLabel.get(); };
    const auto chips = [this] {
        return screen->departingTime.get() + " " + screen->departingPrice.get() + " | " +
               screen->returningTime.get() + " " + screen->returningPrice.get();
    };
    const auto sum = [this] {
        return screen->total.get() + " = " + screen->departurePart.get() + screen->returnPart.get();
    };
    openRound();
    EXPECT_EQ(tabs(), "Departing Flights, Choose | Returning Flights, Choose");
    EXPECT_EQ(chips(), "  |  ");
    EXPECT_EQ(sum(), " = ");
    tapItem(0);
    EXPECT_EQ(tabs(), "Departing Flights, chosen: 06:40, NPR 4,000 | Returning Flights, Choose");
    EXPECT_EQ(chips(), "06:40 NPR 4,000 |  ");
    EXPECT_EQ(sum(), "NPR 4,000 = ");
    screen->tapReturningFlights();
    tapItem(0);
    EXPECT_EQ(screen->returningLabel.get(), "Returning Flights, chosen: 10:15, USD 5,000");
    EXPECT_EQ(screen->returningTime.get() + screen->returningPrice.get(), "10:15USD 5,000");
    EXPECT_EQ(sum(), "NPR 9,000 = Departure NPR 4,000+ Return USD 5,000")
        << "in the currency of the departure";
    screen->tapDepartingFlights();
    tapItem(0);
    EXPECT_EQ(sum(), "USD 5,000 = ");
    EXPECT_EQ(chips(), "  | 10:15 USD 5,000");
}

TEST_F(DomesticFlightListViewTest, ContinueLeadsToTheReturnTabThenChecksTheSum) {
    struct Case {
        std::optional<double> balance;
        bool passes;
    };
    for (const auto& [balance, passes] : {Case{8999.5, false}, Case{9000, true}, Case{std::nullopt, true}}) {
        appState.walletBalance = balance;
        openRound();
        tapItem(0);
        screen->continue_();
        EXPECT_EQ(top(), "DomesticFlightListView");
        EXPECT_EQ(model().index.get(), 1);
        EXPECT_EQ(message(), "") << "no check before both are chosen";
        tapItem(0);
        screen->continue_();
        EXPECT_EQ(top(), passes ? "RulesAndRegulationView" : "DomesticFlightListView");
        EXPECT_EQ(message(), passes ? "" : "You don't have sufficient fund.");
    }
    const auto& rules = navigator->top()->fields;
    EXPECT_EQ(rules.find("itineraryType")->read(), "round");
    EXPECT_EQ(rules.find("flight")->read()["totalCost"], 4000);
    EXPECT_EQ(rules.find("returnFlight")->read()["totalCost"], 5000);
}

TEST_F(DomesticFlightListViewTest, OneWayContinueChecksTheOffer) {
    appState.walletBalance = 999.9;
    open();
    answer(listOf({{"a", 999}, {"b", 1000}}));
    screen->tapReturningFlights();
    tapItem(1);
    screen->continue_();
    EXPECT_EQ(message(), "You don't have sufficient fund.");
    tapItem(0);
    screen->continue_();
    EXPECT_EQ(top(), "RulesAndRegulationView");
}

TEST_F(DomesticFlightListViewTest, TheOneSnackBarSaysTheMessageOfItsLastReason) {
    appState.walletBalance = 1;
    openRound();
    screen->tapReturningFlights();
    EXPECT_EQ(message(), "Please select a flight first.");
    chooseBoth();
    screen->continue_();
    EXPECT_EQ(message(), "You don't have sufficient fund.");
    EXPECT_EQ(screen->errorDetail.get(), "Your balance is NPR 1. NPR 8,999 more is needed.");
    screen->tapDepartingFlights();
    tapItem(0);
    screen->tapReturningFlights();
    EXPECT_EQ(message(), "Please select a flight first.");
    EXPECT_EQ(screen->errorDetail.get(), "");
}

TEST_F(DomesticFlightListViewTest, ASumThatNoNumberHoldsIsMoreThanTheWalletHas) {
    appState.walletBalance = 1e9;
    openRound(std::numeric_limits<std::int64_t>::max() - 100, 5000);
    chooseBoth();
    screen->continue_();
    EXPECT_EQ(message(), "You don't have sufficient fund.");
    EXPECT_EQ(top(), "DomesticFlightListView");
}

TEST_F(DomesticFlightListViewTest, AnEmptyHalfHasNothingToFilter) {
    open(true);
    answer(Json::array({listOf({{"a", 10}}), Json::array()}));
    EXPECT_TRUE(screen->openFilter.isEnabled());
    tapItem(0);
    screen->tapReturningFlights();
    EXPECT_FALSE(screen->openFilter.isEnabled());
    appState.domesticSearchRootViewActive = true;
    std::static_pointer_cast<NoFlightRecommendationsView>(Navigator::withParts(screen).back())->button();
    EXPECT_FALSE(model().showFilterBottomSheet);
    EXPECT_FALSE(appState.domesticSearchRootViewActive);
}

TEST_F(DomesticFlightListViewTest, AFilterClearsByItsTabAndTheTabsShareItsSelection) {
    openRound();
    chooseBoth();
    screen->openFilter();
    EXPECT_EQ(filter().priceRange.get(), "NPR 5,000 - NPR 5,010");
    filter().apply();
    EXPECT_EQ(chosen(), "a-") << "the return list's filter keeps the departure";
    EXPECT_FALSE(model().returnFlightSelected || screen->showReturnFlightSegmant);
    EXPECT_TRUE(model().departureFlightSelected && model().showContinueButton);
    EXPECT_EQ(model().price.get(), 5010.0);

    tapItem(0);
    screen->tapDepartingFlights();
    screen->openFilter();
    EXPECT_EQ(model().price.get(), 5010.0) << "what the other tab chose, beyond this list's dearest";
    filter().slide(4005);
    filter().apply();
    EXPECT_EQ(chosen(), "--") << "the departure list's filter takes both";
    EXPECT_FALSE(model().departureFlightSelected || model().returnFlightSelected ||
                 model().showContinueButton);
    EXPECT_EQ(keysOf(model().filteredDepartureFlights.get()) + keysOf(model().filteredReturnFlights.get()),
              "axy");

    tapItem(0);
    screen->tapReturningFlights();
    screen->openFilter();
    EXPECT_EQ(model().price.get(), 4005.0);
    filter().apply();
    EXPECT_TRUE(model().filteredReturnFlights->empty());
    EXPECT_EQ(content(), "NoFlightRecommendationsView");
    EXPECT_EQ(chosen(), "a-");
}

TEST_F(DomesticFlightListViewTest, AOneWayFilterClearsTheOneWayChoice) {
    open();
    answer(listOf({{"a", 999}, {"b", 1000}}));
    tapItem(0);
    screen->openFilter();
    filter().slide(0); // held at the cheapest
    filter().apply();
    EXPECT_EQ(keysOf(list()->offers.get()), "a");
    EXPECT_EQ(chosen(), "--");
    EXPECT_FALSE(model().flightSelected || model().showContinueButton || screen->showDepartureFlightSegmant);
}

TEST_F(DomesticFlightListViewTest, ANewSearchReturnsToTheDepartureTabWithNothingChosen) {
    openRound();
    chooseBoth();
    screen->nextReturn();
    EXPECT_EQ(model().index.get(), 0);
    EXPECT_EQ(chosen(), "--");
    EXPECT_EQ(sent("return_date"), "2026-12-10");
}

} // namespace
} // namespace ombrivane
