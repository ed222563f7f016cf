#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "results/Offers.h"
#include "search/MainView.h"
#include "search/SelectDestinationFlightView.h"
#include "search/SelectOriginFlightView.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using offers::airport;

class AirportSelectionTest : public testing::Test {
protected:
    AirportSelectionTest() {
        model.originText = "old origin";
        model.departCityCode = "OLD";
        model.destinationText = "old destination";
        model.destCityCode = "DST";
        navigator.start();
    }

    static std::string found(const Json& airports) { return offers::success({{"airports", airports}}); }
    static Json three() {
        return Json::array({airport("KTM", "Kathmandu"),
                            airport("DOH", "Doha", "Qatar"),
                            airport("XXX", "Nowhere", nullptr)});
    }
    std::string top() const { return std::string(navigator.top()->name()); }
    AirportSearch& screen() const { return dynamic_cast<AirportSearch&>(*navigator.top()); }
    std::string codes() const {
        std::string list;
        for (std::size_t i = 0; i < screen().rows.size(); ++i)
            list += row(i)->code.get() + " ";
        return list;
    }
    std::shared_ptr<FlightListItemView> row(std::size_t index) const {
        return std::static_pointer_cast<FlightListItemView>(screen().rows.row(index));
    }
    /// What the list says of itself.
    std::string state() const {
        return (screen().isLoading.get() ? "loading" : "") +
               std::string(screen().showsHeading.get() ? "popular" : "") + screen().nothingText.get() +
               (screen().errorMessage->empty() ? "" : ", " + screen().errorMessage.get());
    }
    void tapRow(std::size_t index) { row(index)->tap(); }
    std::string origin() const {
        return model.originText.get() + "|" + model.departCityCode.get() + "|" + model.departCity.get() +
               "|" + model.departCountry.get();
    }
    std::string destination() const {
        return model.destinationText.get() + "|" + model.destCityCode.get() + "|" + model.destCity.get() +
               "|" + model.destCountry.get();
    }

    fakes::World world;
    MainViewModel& model = MainViewModel::shared();
    std::shared_ptr<MainView> main =
        std::make_shared<MainView>([](const std::optional<Dictionary>&, const std::optional<Error>&) {});
    Navigator navigator{main};
};

TEST_F(AirportSelectionTest, TheOriginLeadsToTheDestinationAndBothReachTheFormTogether) {
    for (const TabBarItem tab : {TabBarItem::oneWay, TabBarItem::roundTrip}) {
        main->tabBar->tap(tab);
        (tab == TabBarItem::oneWay ? main->oneWay->tapOrigin : main->roundTrip->tapOrigin)();
        EXPECT_EQ(top(), "SelectOriginFlightView");
        world.answer(found(three()));
        EXPECT_EQ(row(0)->mainText.get(), "Kathmandu, Nepal");
        tapRow(0);
        ASSERT_EQ(top(), "SelectDestinationFlightView");
        EXPECT_EQ(origin(), "old origin|OLD||");
        world.answer(found(three()));
        EXPECT_EQ(codes(), "DOH XXX ") << "an airport is not its own destination";
        tapRow(1);
        EXPECT_EQ(top(), "MainView");
        EXPECT_EQ(origin(), "KTM - Kathmandu, Kathmandu Airport|KTM|Kathmandu|Nepal");
        EXPECT_EQ(destination(), "XXX - Nowhere, Nowhere Airport|XXX|Nowhere|") << "no country told";
        model.originText = "old origin";
        model.departCityCode = "OLD";
        model.departCity = "";
        model.departCountry = "";
    }
}

TEST_F(AirportSelectionTest, TheBackGestureWritesNothingAndCloseCommitsTheOriginAlone) {
    main->oneWay->tapOrigin();
    world.answer(found(three()));
    tapRow(1);
    world.answer(found(three()));
    navigator.back();
    EXPECT_EQ(top(), "SelectOriginFlightView");
    EXPECT_EQ(origin(), "old origin|OLD||");

    world.answer(found(three()));
    tapRow(0);
    screen().close();
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(origin(), "KTM - Kathmandu, Kathmandu Airport|KTM|Kathmandu|Nepal");
    EXPECT_EQ(destination(), "old destination|DST||");
}

TEST_F(AirportSelectionTest, CloseOnTheOriginLeavesAllAsItWas) {
    main->oneWay->tapOrigin();
    world.answer(found(three()));
    screen().close();
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(origin() + destination(), "old origin|OLD||old destination|DST||");
}

TEST_F(AirportSelectionTest, TheDestinationAloneLeavesTheOriginAndItsAirportOut) {
    model.departCityCode = "DOH";
    main->oneWay->tapDestination();
    world.answer(found(three()));
    EXPECT_EQ(codes(), "KTM XXX ");
    tapRow(0);
    EXPECT_EQ(top(), "MainView");
    EXPECT_EQ(destination(), "KTM - Kathmandu, Kathmandu Airport|KTM|Kathmandu|Nepal");
    EXPECT_EQ(model.originText.get(), "old origin");

    model.departCityCode = "";
    main->oneWay->tapDestination();
    world.answer(found(Json::array({airport("", "Codeless"), airport("KTM", "Kathmandu")})));
    EXPECT_EQ(codes(), " KTM ") << "no origin leaves nothing out";
}

TEST_F(AirportSelectionTest, ASearchFollowsEachAppearanceAndEachChangeOfTheText) {
    main->oneWay->tapOrigin();
    screen().type("d");
    screen().type("do");
    world.answer(found(three()));
    tapRow(0);
    navigator.back();
    std::vector<std::string> queries;
    for (const auto& request : world.network->sent())
        queries.push_back(request.url.substr(request.url.find('?')));
    EXPECT_EQ(
        queries,
        (std::vector<std::string>{
            "?q=&user_type=", "?q=d&user_type=", "?q=do&user_type=", "?q=&user_type=", "?q=&user_type="}));
}

TEST_F(AirportSelectionTest, TheLastAnswerToArriveWinsAndAFailureLeavesTheList) {
    main->oneWay->tapOrigin();
    EXPECT_EQ(state(), "loading");
    screen().type("do");
    world.network->answer(found(Json::array({airport("DOH", "Doha")})), 1);
    world.queue->drain();
    EXPECT_EQ(codes(), "DOH ");
    EXPECT_EQ(state(), "loading") << "another answer is out";
    world.answer(found(Json::array({airport("KTM", "Kathmandu")})));
    EXPECT_EQ(codes(), "KTM ") << "the earlier question was answered later";
    EXPECT_EQ(state(), "popular");

    screen().type("dx");
    world.answer(offers::refusal("No."));
    screen().type("a b"); // no address can be made of it
    world.queue->drain();
    EXPECT_EQ(world.network->outstanding(), 0U);
    EXPECT_EQ(codes(), "KTM ");
    EXPECT_EQ(state(), "popular, The provided url is not valid.");

    screen().type("zzzq");
    world.answer(found(Json::array()));
    EXPECT_EQ(state(), "No airport for “zzzq”. Try a city or a code like KTM.");
    screen().type("ktm");
    EXPECT_EQ(state(), "loading") << "of another one is said what its answer says";
    world.answer(found(three()));
    EXPECT_EQ(state(), "");
}

TEST_F(AirportSelectionTest, AnAnswerAfterTheScreenLeftDoesNoHarm) {
    main->oneWay->tapOrigin();
    const std::weak_ptr<Screen> left = navigator.top();
    navigator.back();
    EXPECT_FALSE(left.expired()) << "the question that is out holds it";
    world.answer(found(three()));
    EXPECT_TRUE(left.expired());
    EXPECT_EQ(top(), "MainView");
}

} // namespace
} // namespace ombrivane
