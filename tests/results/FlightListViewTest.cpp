#include "results/FlightListView.h"

#include "results/ResultsFixture.h"

#include <limits>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;
using offers::keysOf;
using offers::listOf;

class FlightListViewTest : public ResultsFixture<FlightListView> {
protected:
    static constexpr const char* nothingFound = "Sorry! No flight recommendations found.";

    static Json three() {
        return listOf({{"c", 3000, "Lotus"}, {"a", 1000, "Saffron"}, {"b", 2000, "Saffron", "20:00"}});
    }
};

TEST_F(FlightListViewTest, OffersAreSortedByTheirTotalEqualOnesInTheServicesOrder) {
    open();
    std::vector<offers::Sketch> many;
    std::string sorted[3];
    for (char key = '!'; key < 'z'; ++key) {
        const int cost = key * 7 % 3;
        many.push_back({std::string(1, key), cost});
        sorted[cost] += key;
    }
    answer(listOf(many));
    EXPECT_EQ(keysOf(model().onewayFlights.get()), sorted[0] + sorted[1] + sorted[2]);
    EXPECT_EQ(model().filteredOnewayFlights.get(), model().onewayFlights.get());
    EXPECT_FALSE(model().isLoading);
    EXPECT_EQ(content(), "OneWayFlightListView");
    EXPECT_EQ(list()->strip.size(), 0U) << "no strip above international one-way offers";

    open(true);
    answer(listOf({{"c", 900}, {"b", 100}, {"d", 900}}, offers::roundTrip));
    EXPECT_EQ(keysOf(model().roundtripFlights.get()), "bcd");
    EXPECT_EQ(keysOf(model().filteredRoundtripFlights.get()), "bcd");
    EXPECT_EQ(content(), "RoundTripFlightListView");
}

TEST_F(FlightListViewTest, EachFailureHasItsReaction) {
    struct Case {
        const char* what;
        HttpAnswer answer;
        bool loading;
        const char* content;
    };
    const std::string badOffer = offers::success(Json::array({offers::oneWay({}), Json::object()}));
    const Error offline{"NSURLErrorDomain", -1009, "You are not connected to internet."};
    const Case cases[] = {
        {"nothing exists", {offers::refusal(nothingFound), {}}, true, "NoFlightRecommendationsView"},
        {"another refusal", {offers::refusal("No flights."), {}}, true, "OneWayFlightListView"},
        {"the network", {std::nullopt, offline}, true, "OneWayFlightListView"},
        {"a bad offer", {badOffer, {}}, true, "OneWayFlightListView"},
        {"an empty list", {offers::success(Json::array()), {}}, false, "NoFlightRecommendationsView"},
    };
    for (const auto& [what, answered, loading, shown] : cases) {
        open();
        world.network->complete(answered);
        world.queue->drain();
        EXPECT_EQ(model().isLoading.get(), loading) << what;
        EXPECT_EQ(content(), shown) << what;
        EXPECT_EQ(screen->showsFloatingBar.get(), !loading) << what;
        EXPECT_EQ(message(), "") << what;
    }
    world.reachability->word = 0;
    open();
    world.queue->drain();
    EXPECT_FALSE(model().isLoading);
    EXPECT_EQ(content(), "NoInternetConnectionView");
    EXPECT_FALSE(screen->showsFloatingBar.get());
}

TEST_F(FlightListViewTest, WithoutAConnectionTheSearchThatFailedIsSentOnceMore) {
    for (const bool roundTrip : {false, true}) {
        world.reachability->word = 0;
        open(roundTrip);
        world.queue->drain();
        screen->nextDeparture();
        world.queue->drain();
        ASSERT_EQ(content(), "NoInternetConnectionView");
        const auto offline = Navigator::withParts(screen).back();
        world.reachability->word = reachableFlag;
        offline->fields.find("button")->trigger({});
        EXPECT_TRUE(model().isLoading);
        EXPECT_EQ(content(), roundTrip ? "RoundTripFlightListView" : "OneWayFlightListView");
        EXPECT_EQ(sent("depart_date"), "2026-12-02");
        EXPECT_EQ(sent("return_date"), roundTrip ? "2026-12-09" : "-");
    }
}

/// Also over a search that nobody answers, or that failed in a way for which this screen has no words: its
/// state stays.
TEST_F(FlightListViewTest, ASearchSaysThatItIsOneAndWhereItIsLongTheWayOut) {
    const auto expectTold = [this](const char* what, const char* wayOut) {
        EXPECT_EQ(screen->wait.waitText.get(), what);
        EXPECT_EQ(screen->wait.waitHint.get(), wayOut);
    };
    constexpr const char* searching = "Searching for flights";
    constexpr const char* orGoBack = "This takes longer than usual. You can wait, or go back.";
    open();
    expectTold("", "");
    world.pass(7999ms);
    expectTold(searching, "");
    screen->nextDeparture();
    world.pass(1000ms);
    expectTold(searching, "");
    world.pass(7000ms);
    expectTold(searching, orGoBack);
    EXPECT_TRUE(model().isLoading);
    answer(three()); // to the first of the two
    world.answer(offers::refusal("No flights."));
    expectTold(searching, orGoBack);
    for (const bool exists : {true, false}) {
        screen->nextDeparture();
        world.pass(8000ms);
        expectTold(searching, orGoBack);
        exists ? answer(three()) : world.answer(offers::refusal(nothingFound));
        expectTold("", "");
        world.pass(8000ms);
        expectTold("", "");
    }
}

TEST_F(FlightListViewTest, ANewSearchStartsFromLoadingWhateverTheLastOneBrought) {
    open();
    world.answer(offers::refusal(nothingFound));
    screen->nextDeparture();
    EXPECT_FALSE(model().flightsListIsEmpty);
    EXPECT_EQ(content(), "OneWayFlightListView");
    answer(three());
    tapItem(0);
    model().selectedId = "Lotus";
    const Uuid chosen = model().selectedFlightSegmentId;
    screen->nextDeparture();
    EXPECT_TRUE(model().isLoading);
    EXPECT_FALSE(model().showContinueButton);
    EXPECT_FALSE(model().flight->has_value());
    EXPECT_EQ(model().selectedFlightSegmentId.get(), chosen) << "stale, and equal to no new offer";
    answer(three());
    EXPECT_EQ(keysOf(model().filteredOnewayFlights.get()), "abc") << "the filter is not applied anew";
    EXPECT_EQ(model().selectedId.get(), "Lotus");
    EXPECT_FALSE(item(0)->isChosen.get());
}

TEST_F(FlightListViewTest, DatesAreSteppedFreelyAndEachStepSearches) {
    open(true);
    EXPECT_EQ(sent("depart_date") + sent("return_date"), "2026-12-012026-12-09");
    screen->previousDeparture();
    EXPECT_EQ(sent("trip_type") + sent("depart_date") + sent("return_date"), "round2026-11-302026-12-09");
    for (int i = 0; i < 10; ++i)
        screen->previousReturn();
    EXPECT_EQ(sent("depart_date") + sent("return_date"), "2026-11-302026-11-29")
        << "also before the departure";
    screen->nextReturn();
    EXPECT_EQ(sent("return_date"), "2026-11-30");
    EXPECT_EQ(screen->departDateText.get() + screen->returnDateText.get(),
              "Mon, Nov 30, 2026Mon, Nov 30, 2026");
    EXPECT_EQ(world.network->sent().size(), 13U);

    open();
    screen->nextDeparture();
    EXPECT_EQ(sent("trip_type") + sent("depart_date") + sent("return_date"), "oneway2026-12-02-");
    EXPECT_FALSE(screen->nextReturn.isEnabled());
}

TEST_F(FlightListViewTest, AddReturnDateTurnsTheScreenIntoARoundTrip) {
    open();
    answer(three());
    EXPECT_EQ(screen->routeImage.get(), "toIcon");
    tapItem(0); // an offer of one way is chosen, and its total shown, while the list turns into one of round
                // trips
    screen->addReturnDate();
    ASSERT_EQ(top(), "CustomRoundTripDatePickerView");
    EXPECT_EQ(model().returnDate.get(), model().departDate.get());
    Fields& calendar = navigator->top()->fields;
    calendar.find("tapDay")->trigger({"2026-12-05"});
    calendar.find("tapDay")->trigger({"2026-12-07"});
    EXPECT_EQ(world.network->outstanding(), 0U);
    calendar.find("done")->trigger({});
    EXPECT_EQ(top(), "FlightListView");
    EXPECT_EQ(sent("trip_type") + sent("depart_date") + sent("return_date"), "round2026-12-052026-12-07");
    EXPECT_TRUE(screen->showsReturnDate.get());
    EXPECT_FALSE(screen->addReturnDate.isEnabled());
    EXPECT_EQ(screen->routeImage.get(), "exchangeIcon");
    answer(listOf({{"r", 100}}, offers::roundTrip));
    EXPECT_EQ(keysOf(model().filteredRoundtripFlights.get()), "r");
    screen->nextDeparture();
    EXPECT_EQ(sent("trip_type"), "round");
}

TEST_F(FlightListViewTest, AnAnswerToAFormerSearchIsDropped) {
    open();
    screen->nextDeparture();
    screen->nextDeparture();
    ASSERT_EQ(world.network->outstanding(), 3U);
    answer(listOf({{"o"}}));
    EXPECT_TRUE(model().isLoading) << "the first question, answered first";
    world.network->answer(offers::success(listOf({{"n"}})), 1);
    world.queue->drain();
    EXPECT_EQ(keysOf(model().onewayFlights.get()), "n");
    world.answer(offers::refusal(nothingFound));
    EXPECT_EQ(keysOf(model().onewayFlights.get()), "n") << "the header says the day of the last one";
    EXPECT_EQ(content(), "OneWayFlightListView");
}

TEST_F(FlightListViewTest, AnAnswerAfterTheScreenLeftIsTakenInAndLetsItGo) {
    open();
    const std::weak_ptr<FlightListView> left = screen;
    page.follow(nullptr);
    navigator.reset();
    screen.reset();
    ASSERT_FALSE(left.expired());
    world.network->answer(offers::success(three()));
    EXPECT_FALSE(left.expired()) << "what it does, it does on the main queue";
    world.queue->drain();
    EXPECT_TRUE(left.expired());
}

TEST_F(FlightListViewTest, TheSubtitleTellsDatesAndTravellers) {
    struct Case {
        bool roundTrip;
        std::optional<Day> departure;
        std::optional<Day> returning;
        std::vector<std::string> counts;
        const char* line;
    };
    const Day going = Day::parse("2022-06-23").value();
    const Day coming = Day::parse("2022-06-25").value();
    const Case cases[] = {
        {true, going, coming, {"2", "1", "0"}, "Thu, Jun 23, 2022 - Sat, Jun 25, 2022 | 2A, 1C"},
        {false, going, coming, {"2", "0", "0"}, "Thu, Jun 23, 2022 | 2A"},
        {true, going, std::nullopt, {"1", "2", "3"}, "Thu, Jun 23, 2022 | 1A, 2C, 3I"},
        {true, std::nullopt, coming, {"0", "0", "1"}, " - Sat, Jun 25, 2022 | , 1I"},
    };
    open();
    EXPECT_EQ(screen->headerSubtitle.get(), "Tue, Dec 1, 2026 | 2A, 1C");
    for (const auto& [roundTrip, departure, returning, counts, line] : cases) {
        model().hasReturnDate = roundTrip;
        EXPECT_EQ(model().formatHeaderSubtitle(departure, returning, counts[0], counts[1], counts[2]), line);
    }
    for (const char* count : {"", "x", "1.5"})
        EXPECT_THROW(model().formatHeaderSubtitle(going, coming, "1", count, "0"), Fault) << count;
    EXPECT_EQ(world.takeFaults().size(), 3U);
}

TEST_F(FlightListViewTest, ATapChoosesAndUnfoldsAndASecondTakesBothBack) {
    open();
    EXPECT_TRUE(item(0)->isPlaceholder.get());
    EXPECT_FALSE(item(0)->tap.isEnabled());
    answer(three());
    tapItem(1);
    EXPECT_TRUE(item(1)->isChosen.get() && item(1)->isUnfolded.get());
    EXPECT_EQ(item(1)->journeys.get().at(0).segments.size(), 1U);
    EXPECT_TRUE(item(0)->journeys.get().at(0).segments.empty());
    EXPECT_EQ(screen->total.get(), "NPR 2,000");
    tapItem(0);
    EXPECT_FALSE(item(1)->isChosen.get() || item(1)->isUnfolded.get());
    EXPECT_TRUE(item(0)->isChosen.get());
    EXPECT_EQ(screen->total.get(), "NPR 1,000");
    EXPECT_TRUE(model().flightSelected && model().showContinueButton && screen->showSegmant);
    tapItem(0);
    EXPECT_FALSE(item(0)->isChosen.get() || item(0)->isUnfolded.get());
    EXPECT_FALSE(model().flightSelected || model().showContinueButton || screen->showSegmant);
    EXPECT_FALSE(model().flight->has_value());
    EXPECT_FALSE(screen->continue_.isEnabled());
    EXPECT_EQ(screen->total.get(), "");
}

TEST_F(FlightListViewTest, TheWalletsBalanceIsTruncatedAndOnlyMoreThanItStops) {
    struct Case {
        std::optional<double> balance;
        std::int64_t cost;
        const char* lacks; ///< what stands beneath the refusal, nothing where it passes
    };
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const Case cases[] = {
        {1000.9, 1000, nullptr},
        {1000.9, 3001, "Your balance is NPR 1,000. NPR 2,001 more is needed."},
        {std::nullopt, 999'999'999, nullptr},
        {0.99, 1, "Your balance is NPR 0. NPR 1 more is needed."},
        {0.0, 0, nullptr},
        {-0.5, 0, nullptr},
        {-1.0, 0, "Your balance is NPR -1. NPR 1 more is needed."},
        {-5.0, most, "Your balance is NPR -5. NPR 9,223,372,036,854,775,807 more is needed."},
        {9e18, 1000, nullptr},
    };
    for (const bool roundTrip : {false, true}) {
        for (const auto& [balance, cost, lacks] : cases) {
            const bool passes = lacks == nullptr;
            appState.walletBalance = balance;
            open(roundTrip);
            answer(listOf({{.cost = cost}}, roundTrip ? offers::roundTrip : offers::oneWay));
            roundTrip ? item<RoundTripFlightListView>(0)->tap() : tapItem(0);
            screen->continue_();
            EXPECT_EQ(top(), passes ? "RulesAndRegulationView" : "FlightListView")
                << balance.value_or(-2) << " " << cost;
            EXPECT_EQ(message(), passes ? "" : "You don't have sufficient balance.");
            EXPECT_EQ(screen->errorDetail.get(), passes ? "" : lacks);
            world.pass(3s);
            EXPECT_EQ(message(), "");
        }
    }
    for (const double balance :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(), 1e19}) {
        appState.walletBalance = balance;
        open();
        answer(three());
        tapItem(0);
        screen->continue_();
        EXPECT_EQ(world.takeFaults().size(), 1U) << balance;
        EXPECT_EQ(top(), "FlightListView");
    }
}

TEST_F(FlightListViewTest, TheRulesGetTheChoiceAndComingBackSearchesAgain) {
    open();
    answer(three());
    tapItem(0);
    screen->continue_();
    const auto& rules = navigator->top()->fields;
    const auto text = [&rules](const char* key) { return rules.find(key)->read(); };
    EXPECT_EQ(text("bookingClass"), "M");
    EXPECT_EQ(text("departLocation"), "Kathmandu");
    EXPECT_EQ(text("destLocation"), "Doha");
    EXPECT_EQ(text("itineraryType"), "oneway");
    EXPECT_EQ(text("flight")["totalCost"], 1000);
    EXPECT_EQ(text("returnFlight"), nullptr);
    const std::size_t before = world.network->sent().size();
    navigator->back();
    EXPECT_EQ(top(), "FlightListView");
    EXPECT_EQ(world.network->sent().size(), before + 1);
    EXPECT_TRUE(model().isLoading);
}

TEST_F(FlightListViewTest, AFilterOpensOnTheListAndClearsTheChoiceWhenApplied) {
    open();
    EXPECT_FALSE(screen->openFilter.isEnabled()) << "not while loading";
    answer(three());
    tapItem(0);
    screen->openFilter();
    EXPECT_EQ(filter().priceRange.get(), "NPR 1,000 - NPR 3,000");
    EXPECT_EQ(model().price.get(), 3000.0) << "the slider opens at its right end";
    filter().slide(2500);
    EXPECT_EQ(filter().airlines.size(), 3U);
    filter().airlines.row(1)->fields.find("tap")->trigger({});
    filter().times.row(3)->fields.find("tap")->trigger({});
    filter().times.row(3)->fields.find("tap")->trigger({});
    EXPECT_EQ(model().selectedId.get() + " " + model().time.get(), "Saffron evening");
    EXPECT_EQ(keysOf(model().filteredOnewayFlights.get()), "abc") << "nothing before Apply";
    EXPECT_TRUE(model().showContinueButton);
    filter().apply();
    EXPECT_EQ(top(), "FlightListView");
    EXPECT_EQ(keysOf(model().filteredOnewayFlights.get()), "b");
    EXPECT_EQ(keysOf(model().onewayFlights.get()), "abc");
    EXPECT_FALSE(model().showContinueButton || model().flightSelected || screen->showSegmant);
    EXPECT_FALSE(model().flight->has_value());

    screen->openFilter();
    EXPECT_EQ(model().price.get(), 2500.0) << "it keeps its place";
    filter().resetAll();
    EXPECT_EQ(model().selectedId.get() + model().time.get(), "All Airlines");
    EXPECT_EQ(model().price.get(), 3000.0);
    navigator->back();
    EXPECT_EQ(keysOf(model().filteredOnewayFlights.get()), "b") << "reset alone does not filter";
}

TEST_F(FlightListViewTest, TheFilterIsMarkedWhileItLeavesOffersOut) {
    open();
    EXPECT_FALSE(screen->filterIsOn.get());
    answer(three());
    screen->openFilter();
    filter().slide(2500);
    EXPECT_FALSE(screen->filterIsOn.get()) << "nothing is applied yet";
    filter().apply();
    EXPECT_TRUE(screen->filterIsOn.get()) << "by the price alone";
    screen->nextDeparture();
    EXPECT_FALSE(screen->filterIsOn.get());
    answer(three());
    EXPECT_FALSE(screen->filterIsOn.get()) << "over the full list of another search";
}

TEST_F(FlightListViewTest, AFilterThatLeavesNothingOffersToBeModified) {
    open(true);
    answer(listOf({{"a", 1000}}, offers::roundTrip));
    screen->openFilter();
    model().selectedId = "Returning"; // flies back only
    filter().apply();
    EXPECT_EQ(content(), "NoFlightRecommendationsView");
    EXPECT_TRUE(model().filteredRoundtripFlights->empty());
    const auto empty =
        std::static_pointer_cast<NoFlightRecommendationsView>(Navigator::withParts(screen).back());
    EXPECT_EQ(empty->buttonText.get(), "Modify Filter");
    empty->button();
    EXPECT_EQ(top(), "FilterBottomSheetView");
}

TEST_F(FlightListViewTest, WithoutAnyOfferThereIsNothingToFilterAndTheWayLeadsToTheSearch) {
    for (const bool roundTrip : {false, true}) {
        open(roundTrip);
        answer(Json::array());
        EXPECT_FALSE(screen->openFilter.isEnabled());
        appState.onewaySearchRootViewActive = true;
        std::static_pointer_cast<NoFlightRecommendationsView>(Navigator::withParts(screen).back())->button();
        EXPECT_FALSE(appState.onewaySearchRootViewActive);
        EXPECT_FALSE(model().showFilterBottomSheet);
    }
}

TEST_F(FlightListViewTest, TheDearestOfferCanBeFiltered) {
    open();
    answer(listOf({{"a", INT64_MAX}, {"b", INT64_MIN}}));
    screen->openFilter();
    EXPECT_FALSE(filter().priceRange.get().empty());
    filter().apply();
    EXPECT_EQ(top(), "FlightListView");
}

TEST_F(FlightListViewTest, TheStripOfARoundTripHasACardForEachPairOfTotalAndAirline) {
    open(true);
    EXPECT_EQ(list<RoundTripFlightListView>()->strip.row(0)->fields.find("carrierName")->read(),
              "Loading ...");
    answer(listOf({{"a", 100, "Lotus"}, {"b", 100, "Saffron"}, {"c", 100, "Lotus"}, {"d", 200, "Lotus"}},
                  offers::roundTrip));
    const auto shown = list<RoundTripFlightListView>();
    EXPECT_EQ(shown->rows.size(), 4U);
    ASSERT_EQ(shown->strip.size(), 3U);
    shown->strip.row(2)->fields.find("tap")->trigger({});
    EXPECT_EQ(shown->scrollToId.get(), textOf(shown->rows.identities().at(3)))
        << "the dearer offer of the same airline";
    model().filteredRoundtripFlights =
        RoundTripOffers(model().roundtripFlights->begin(), model().roundtripFlights->begin() + 1);
    EXPECT_EQ(shown->strip.size(), 1U) << "the strip follows the filtered list";
}

TEST_F(FlightListViewTest, TheHeaderGoesWithTheScrollAndTheScrollUpButtonComes) {
    open();
    answer(three());
    EXPECT_FALSE(screen->scrollUp.isEnabled());
    screen->scrolled(400);
    EXPECT_FALSE(model().showActionBar);
    screen->scrollUp();
    EXPECT_TRUE(model().scrollToTop);
    list()->arrivedAtTop();
    screen->scrolled(0);
    EXPECT_TRUE(model().showActionBar && !model().scrollToTop && !screen->showsScrollUp.get());
}

} // namespace
} // namespace ombrivane
