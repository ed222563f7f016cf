#pragma once

#include "Onlooker.h"
#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "results/FilterBottomSheetView.h"
#include "results/Offers.h"
#include "results/ResultsScreen.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// A result list on screen, its first search under way, with a page that looks at it.
template <class List> class ResultsFixture : public testing::Test {
protected:
    /// A fresh screen; what the one before still waits for fails.
    void open(bool roundTrip = false) {
        page.follow(nullptr);
        navigator.reset();
        while (world.network->outstanding() > 0)
            world.network->fail({"Fake", 1, "Closed."});
        world.queue->drain();
        SearchRequest request;
        request.tripType = roundTrip ? "round" : "oneway";
        request.departCityCode = "KTM";
        request.departCity = "Kathmandu";
        request.destCityCode = "DOH";
        request.destCity = "Doha";
        request.departDate = Day::parse("2026-12-01").value();
        if (roundTrip) request.returnDate = Day::parse("2026-12-09").value();
        request.nationality = "NP";
        request.adults = "2";
        request.children = "1";
        request.infants = "0";
        request.flightClass = "M";
        screen = std::make_shared<List>(request,
                                        [](const std::optional<Dictionary>&, const std::optional<Error>&) {});
        navigator = std::make_unique<Navigator>(screen);
        navigator->start();
        page.follow(navigator.get());
    }

    auto& model() { return screen->flightListVM; }
    std::string top() const { return std::string(navigator->top()->name()); }
    /// What stands in the place of the list: its name.
    std::string content() const { return std::string(Navigator::withParts(screen).back()->name()); }
    FilterBottomSheetView& filter() const { return dynamic_cast<FilterBottomSheetView&>(*navigator->top()); }
    std::string sent(const char* key) const {
        const Json body = Json::parse(world.network->last().body.value_or("{}"));
        return body.contains(key) ? body.at(key).template get<std::string>() : "-";
    }
    void answer(const Json& data) { world.answer(offers::success(data)); }

    /// The list on screen.
    template <class ListView = OneWayFlightListView> std::shared_ptr<ListView> list() const {
        return std::dynamic_pointer_cast<ListView>(Navigator::withParts(screen).back());
    }
    template <class ListView = OneWayFlightListView>
    std::shared_ptr<OfferItemView> item(std::size_t row) const {
        return std::static_pointer_cast<OfferItemView>(list<ListView>()->rows.row(row));
    }
    void tapItem(std::size_t row) { item(row)->tap(); }
    /// What the snack bar says, empty while it is hidden.
    std::string message() { return model().showSnackBar ? screen->errorMessage.get() : std::string(); }

    fakes::World world;
    AppState& appState = AppState::shared();
    std::shared_ptr<List> screen;
    std::unique_ptr<Navigator> navigator;
    journey::Onlooker page;
};

} // namespace ombrivane
