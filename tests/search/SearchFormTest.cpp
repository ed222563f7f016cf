#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "parts/AlertView.h"
#include "parts/SupportContacts.h"
#include "results/DomesticFlightListView.h"
#include "results/FlightListView.h"
#include "results/Offers.h"
#include "search/MainView.h"
#include "search/NationalityBottomSheetView.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

class SearchFormTest : public testing::Test {
protected:
    SearchFormTest() { navigator.start(); }

    std::string top() const { return std::string(navigator.top()->name()); }
    template <class ScreenType> std::shared_ptr<ScreenType> topAs() const {
        return std::dynamic_pointer_cast<ScreenType>(navigator.top());
    }
    SearchForm& form(TabBarItem tab) {
        main->tabBar->tap(tab);
        if (tab == TabBarItem::roundTrip) return *main->roundTrip;
        return *main->oneWay;
    }
    void fill(const char* departCountry = "Nepal", const char* destCountry = "Qatar") {
        model.departCity = "Kathmandu";
        model.departCityCode = "KTM";
        model.departCountry = departCountry;
        model.destCity = "Doha";
        model.destCityCode = "DOH";
        model.destCountry = destCountry;
        model.departureDateText = "Tue, Dec 1, 2026";
        model.departureDate = Day::parse("2026-12-01").value();
        model.returnDate = Day::parse("2026-12-09").value();
        model.nationality = "NP";
        model.cabinClass = "Business";
    }
    /// The flags of `AppState` that are raised, by their keys.
    std::string raised() const {
        std::string keys;
        for (Member* member : appState.fields.members()) {
            if (member->read() == Json(true)) keys += std::string(member->key()) + " ";
        }
        return keys;
    }

    fakes::World world;
    AppState& appState = AppState::shared();
    MainViewModel& model = MainViewModel::shared();
    int closed = 0;
    std::shared_ptr<MainView> main = std::make_shared<MainView>(
        [this](const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
            EXPECT_FALSE(dictionary || error);
            ++closed;
        });
    Navigator navigator{main};
};

TEST_F(SearchFormTest, ASearchIsRefusedInTheOrderOfTheChecksOrTakesItsRoad) {
    constexpr auto oneWay = TabBarItem::oneWay;
    constexpr auto roundTrip = TabBarItem::roundTrip;
    struct Case {
        const char* what;
        TabBarItem tab;
        std::function<void()> prepare;
        std::string expected; ///< the alert's message or the raised flag
    };
    const std::string fields = "Please select all the fields.";
    const std::string same = "Departure / Destination city cannot be same";
    const Case cases[] = {
        {"empty", oneWay, [] {}, fields},
        {"empty", roundTrip, [] {}, fields},
        {"no destination, same codes",
         oneWay,
         [this] {
             model.destCity = "";
             model.destCityCode = "KTM";
         },
         fields},
        {"no departure date, no return date", roundTrip, [this] { model.departureDateText = ""; }, fields},
        {"no return date", oneWay, [this] { fill(); }, "onewaySearchRootViewActive "},
        {"no return date", roundTrip, [this] { fill(); }, "Please select return date."},
        {"no return date, same codes",
         roundTrip,
         [this] { model.destCityCode = "KTM"; },
         "Please select return date."},
        {"same codes at home", oneWay, [this] { fill("Nepal", "Nepal"), model.destCityCode = "KTM"; }, same},
        {"same codes at home", roundTrip, [this] { model.returnDateText = "x"; }, same},
        {"abroad", roundTrip, [this] { fill(); }, "roundtripSearchRootViewActive "},
        {"at home", oneWay, [this] { fill("Nepal", "Nepal"); }, "domesticSearchRootViewActive "},
        {"at home", roundTrip, [] {}, "domesticSearchRootViewActive "},
        {"both abroad", oneWay, [this] { fill("Qatar", "Qatar"); }, "onewaySearchRootViewActive "},
        {"from abroad", oneWay, [this] { fill("Qatar", "Nepal"); }, "onewaySearchRootViewActive "},
        {"no country told", oneWay, [this] { fill("", ""); }, "onewaySearchRootViewActive "},
        {"other letters", oneWay, [this] { fill("NEPAL", "Nepal"); }, "onewaySearchRootViewActive "},
    };
    for (const auto& [what, tab, prepare, expected] : cases) {
        prepare();
        form(tab).search();
        const auto alert = topAs<AlertView>();
        EXPECT_EQ(alert ? alert->message.get() : raised(), expected) << what << static_cast<int>(tab);
        if (alert) {
            EXPECT_EQ(alert->title.get(), "Error!");
            EXPECT_EQ(alert->buttonText.get(), "Dismiss");
            EXPECT_EQ(raised(), "");
            alert->button();
        }
        appState.resetNavigation();
        EXPECT_EQ(top(), "MainView") << what;
    }
    EXPECT_EQ(model.destCity.get(), "Doha") << "no check clears a field";
}

/// Which fields of a form are marked, by the initial letters of their keys.
std::string marked(SearchForm& form) {
    std::string letters;
    for (const auto* flag : {&form.originIsMissing,
                             &form.destinationIsMissing,
                             &form.departureDateIsMissing,
                             &form.returnDateIsMissing,
                             &form.nationalityIsMissing}) {
        letters += flag->get() ? flag->key()[0] : '-';
    }
    return letters;
}

TEST_F(SearchFormTest, ARefusedSearchMarksWhatIsMissingUntilItIsFilled) {
    struct Step {
        std::function<void()> change;
        std::string marks; ///< of the round-trip form
    };
    SearchForm& round = form(TabBarItem::roundTrip);
    const auto search = [&] {
        round.search();
        if (const auto alert = topAs<AlertView>()) alert->button();
    };
    const Step steps[] = {
        {[] {}, "-----"}, // nobody has searched
        {search, "oddrn"},
        {[&] { model.destCity = "Doha"; }, "o-drn"},
        {[&] { model.swapLocations(); }, "-ddrn"},
        {[&] { fill(); }, "---r-"},
        {search, "---r-"},
        {[&] { model.returnDateText = "x"; }, "-----"},
        {[&] { model.nationality = ""; }, "----n"},
        {[&] { model.nationality = "NP"; }, "-----"},
        {search, "-----"}, // it goes through
        {[&] { appState.resetNavigation(), model.destCity = ""; }, "-----"},
    };
    int number = 0;
    for (const auto& [change, marks] : steps) {
        change();
        EXPECT_EQ(marked(round), marks) << "step " << number++;
        EXPECT_EQ(marked(*main->oneWay), "-----") << "the other form was not asked";
    }
    SearchForm& oneWay = form(TabBarItem::oneWay);
    model.returnDateText = "";
    oneWay.search();
    EXPECT_EQ(marked(oneWay), "-d---") << "one way has no return date";
}

TEST_F(SearchFormTest, APlaceIsShownInItsParts) {
    struct Case {
        const char* text;
        const char* city;
        const char* code;
        std::string parts;
    };
    for (const auto& [text, city, code, parts] :
         {Case{"", "", "", "||"},
          Case{"DOH - Doha, Hamad, the new one", "Doha", "DOH", "Doha|DOH|Hamad, the new one"},
          Case{"DOH - Doha, ", "Doha", "DOH", "Doha|DOH|"},
          Case{"Doha", "Doha", "DOH", "Doha|DOH|"}, // a wallet's own words
          Case{"", "Doha", "DOH", "Doha|DOH|"},
          Case{"Doha", "", "", "Doha||"}}) {
        model.destinationText = text;
        model.destCity = city;
        model.destCityCode = code;
        SearchForm& shown = *main->oneWay;
        EXPECT_EQ(shown.destinationCity.get() + "|" + shown.destinationCode.get() + "|" +
                      shown.destinationAirport.get(),
                  parts);
        model.swapLocations();
        EXPECT_EQ(shown.originCity.get() + "|" + shown.originCode.get() + "|" + shown.originAirport.get(),
                  parts);
        model.swapLocations();
    }
}

TEST_F(SearchFormTest, TheListGetsWhatTheFormHolds) {
    fill();
    model.adult = "3";
    model.infant = "1";
    model.returnDateText = "x";
    appState.userType = "customer";
    const std::string common = R"("depart_city":"KTM","dest_city":"DOH","depart_date":"2026-12-01",)";
    const std::string travellers =
        R"("nationality":"NP","adults":3,"children":0,"infants":1,"flight_class":"C"})";

    form(TabBarItem::oneWay).search();
    EXPECT_EQ(world.network->last().body,
              R"({"user_type":"customer","trip_type":"oneway",)" + common + travellers);
    EXPECT_EQ(topAs<FlightListView>()->departCity.get(), "Kathmandu");
    appState.resetNavigation();

    for (const char* country : {"Qatar", "Nepal"}) {
        model.destCountry = country;
        form(TabBarItem::roundTrip).search();
        EXPECT_EQ(world.network->last().body,
                  R"({"user_type":"customer","trip_type":"round",)" + common +
                      R"("return_date":"2026-12-09",)" + travellers);
        appState.resetNavigation();
    }
}

TEST_F(SearchFormTest, ModifySearchReturnsToTheFormAsItWasLeft) {
    fill();
    form(TabBarItem::oneWay).search();
    world.answer(offers::refusal("Sorry! No flight recommendations found."));
    const auto list = topAs<FlightListView>();
    const auto parts = Navigator::withParts(list);
    ASSERT_EQ(parts.back()->name(), "NoFlightRecommendationsView");
    auto& empty = static_cast<NoFlightRecommendationsView&>(*parts.back());
    EXPECT_EQ(empty.buttonText.get(), "Modify Search");
    empty.button();
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(model.destCity.get(), "Doha");
}

TEST_F(SearchFormTest, DatesShowOnlyOnceTheyWereChosen) {
    SearchForm& round = form(TabBarItem::roundTrip);
    EXPECT_EQ(round.departureDate.get() + round.returnDate.get(), "");
    fill();
    EXPECT_EQ(round.departureDate.get(), "Dec 1, 2026");
    EXPECT_EQ(round.returnDate.get(), "");
    model.returnDateText = "x";
    EXPECT_EQ(round.returnDate.get(), "Dec 9, 2026");
}

TEST_F(SearchFormTest, ADayTappedForOneWayMovesTheReturnToo) {
    form(TabBarItem::oneWay).tapDate();
    ASSERT_EQ(top(), "CustomOneWayDatePickerView");
    navigator.top()->fields.find("tapDay")->trigger({"2026-12-30"});
    EXPECT_EQ(model.returnDate->text(), "2027-01-02");
    EXPECT_TRUE(model.isMissingReturnDate());
    navigator.top()->fields.find("done")->trigger({});
    EXPECT_EQ(top(), "MainView");
    form(TabBarItem::roundTrip).tapDate();
    EXPECT_EQ(top(), "CustomRoundTripDatePickerView");
}

TEST_F(SearchFormTest, MultiCityOnlySaysThatItIsNotAvailable) {
    SearchForm& round = form(TabBarItem::roundTrip);
    form(TabBarItem::multiCity);
    EXPECT_EQ(topAs<AlertView>()->title.get(), "Sorry!");
    EXPECT_EQ(topAs<AlertView>()->message.get(), "This feature is not available at the moment.");
    EXPECT_EQ(main->tabSelection.get(), TabBarItem::roundTrip);
    EXPECT_FALSE(round.search.isEnabled()) << "covered by the alert";
    topAs<AlertView>()->button();
    EXPECT_TRUE(round.search.isEnabled());
    EXPECT_EQ(main->tabBar->localSelection.get(), TabBarItem::roundTrip);
    EXPECT_EQ(main->tabBar->labels.get(), (std::vector<std::string>{"One Way", "Round Trip", "Multi City"}));
}

TEST_F(SearchFormTest, TheBackControlClosesTheComponentWithoutAWord) {
    main->back();
    EXPECT_EQ(closed, 1);
}

TEST_F(SearchFormTest, FiveTapsInOneGestureTellTheBuildVersion) {
    const auto tap = [this](int times) {
        for (int i = 0; i < times; ++i)
            main->footer->tapMark();
    };
    tap(4);
    EXPECT_EQ(top(), "MainView");
    world.pass(1500ms);
    tap(4);
    EXPECT_EQ(top(), "MainView") << "four taps and four more are no five";
    tap(1);
    EXPECT_EQ(topAs<AlertView>()->title.get(), "Build Version");
    EXPECT_EQ(topAs<AlertView>()->message.get(), "0.0.38");
    topAs<AlertView>()->button();
    tap(4);
    EXPECT_EQ(top(), "MainView") << "the count starts again";
}

TEST_F(SearchFormTest, TheSupportLinksCarryTheNumbersShown) {
    const auto tapAll = [this] {
        world.urls->opened.clear();
        main->footer->callMobile();
        main->footer->openViber();
        main->footer->openWhatsapp();
        main->footer->callLandLine();
        return world.urls->opened;
    };
    using Links = std::vector<std::string>;
    EXPECT_EQ(main->footer->mobile.get(), "+977 980 0000 000");
    EXPECT_EQ(tapAll(),
              (Links{"tel:+9779800000000",
                     "viber://contact?number=%2B9779800000000",
                     "whatsapp://send?phone=9779800000000",
                     "tel:+97715550100"}));
    // A wallet's own, while the form stands there.
    int told = 0;
    const auto watch = main->footer->mobile.observe([&told] { ++told; });
    SupportContacts::use(
        {.mobile = "+974 (5550) 0123", .viber = "+974 5550 0199", .landLine = "01-5550 123"});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(main->footer->mobile.get(), "+974 (5550) 0123");
    EXPECT_EQ(tapAll(),
              (Links{"tel:+97455500123",
                     "viber://contact?number=%2B97455500199",
                     "whatsapp://send?phone=97455500123",
                     "tel:015550123"}));
    // What it does not have is not offered.
    SupportContacts::use({.mobile = "", .whatsapp = "+974 5550 0177", .landLine = ""});
    EXPECT_FALSE(main->footer->callMobile.isEnabled() || main->footer->openViber.isEnabled());
    EXPECT_EQ(tapAll(), Links{"whatsapp://send?phone=97455500177"});
}

class NationalityTest : public SearchFormTest {
protected:
    std::shared_ptr<NationalityBottomSheetView> sheet() const { return topAs<NationalityBottomSheetView>(); }
    static Json country(const char* name, const char* nationality, const char* code) {
        return {{"id", 1},
                {"name", name},
                {"nationality", nationality},
                {"short_name", code},
                {"country_code", code}};
    }
    static std::string countries() {
        return offers::success({{"countries",
                                 {country("Qatar", "Qatari", "QA"),
                                  country("Nepal", "Nepalese", "NP"),
                                  country("Japan", "Japanese", "JP")}}});
    }
    std::string rows() const {
        std::string names;
        for (std::size_t i = 0; i < sheet()->rows.size(); ++i)
            names += row(i).nationality.get() + " ";
        return names;
    }
    NationalityRow& row(std::size_t index) const {
        row_ = std::static_pointer_cast<NationalityRow>(sheet()->rows.row(index));
        return *row_;
    }
    mutable std::shared_ptr<NationalityRow> row_;
};

TEST_F(NationalityTest, CountriesAreFetchedOnceAndKept) {
    SearchForm& one = form(TabBarItem::oneWay);
    one.tapNationality();
    EXPECT_TRUE(one.isFetchingCountries.get());
    EXPECT_EQ(top(), "MainView");
    world.answer(countries());
    EXPECT_FALSE(one.isFetchingCountries.get());
    EXPECT_EQ(rows(), "Nepalese Qatari Japanese ");
    navigator.back();
    form(TabBarItem::roundTrip).tapNationality();
    EXPECT_NE(sheet(), nullptr);
    EXPECT_EQ(world.network->sent().size(), 1U);
}

TEST_F(NationalityTest, TheSheetOpensOnceAndOverNothingElse) {
    SearchForm& one = form(TabBarItem::oneWay);
    one.tapNationality();
    one.tapNationality();
    EXPECT_EQ(world.network->sent().size(), 1U) << "a second tap while countries load";
    one.tapDate();
    world.answer(countries());
    EXPECT_EQ(top(), "CustomOneWayDatePickerView") << "the customer has gone on";
    navigator.back();
    EXPECT_EQ(top(), "MainView");
    one.tapNationality();
    EXPECT_NE(sheet(), nullptr) << "the countries are there";
}

TEST_F(NationalityTest, AFailureIsOnlyADiagnosticLineAndTheNextTapAsksAgain) {
    SearchForm& one = form(TabBarItem::oneWay);
    one.tapNationality();
    world.answer(offers::refusal("Try later."));
    EXPECT_FALSE(one.isFetchingCountries.get());
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(world.diagnostics->lines, std::vector<std::string>{"Try later."});
    one.tapNationality();
    world.answer(countries());
    EXPECT_NE(sheet(), nullptr);
}

TEST_F(NationalityTest, TheSearchMindsLetterCaseAndFindingNothingShowsAll) {
    form(TabBarItem::oneWay).tapNationality();
    world.answer(countries());
    for (const auto& [typed, expected] :
         std::vector<std::pair<std::string, std::string>>{{"ese", "Nepalese Japanese "},
                                                          {"Nep", "Nepalese "},
                                                          {"nep", "Nepalese Qatari Japanese "},
                                                          {"Qatar", "Qatari "},
                                                          {"", "Nepalese Qatari Japanese "}}) {
        sheet()->type(typed);
        EXPECT_EQ(rows(), expected) << typed;
    }
}

TEST_F(NationalityTest, AChoiceReachesTheFormAndTheSession) {
    form(TabBarItem::oneWay).tapNationality();
    world.answer(countries());
    EXPECT_EQ(appState.nationality.get(), "NP");
    sheet()->type("Jap");
    row(0).tap();
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(model.nationalityText.get() + model.nationality.get(), "JapaneseJP");
    EXPECT_EQ(appState.nationalityText.get() + appState.nationality.get(), "JapaneseJP");
}

} // namespace
} // namespace ombrivane
