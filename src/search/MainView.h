#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/FooterView.h"
#include "search/CustomTabBarView.h"
#include "search/MultiCityView.h"
#include "search/OneWayView.h"
#include "search/RoundTripView.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"

#include <memory>
#include <optional>

namespace ombrivane {

/// The first screen: title bar, tab bar and the form of the chosen tab.
class MainView final : public Screen {
private:
    const CompletionCallback completionCallback_;

public:
    explicit MainView(CompletionCallback completionCallback) :
        Screen("MainView"), completionCallback_(std::move(completionCallback)) {}

    Published<TabBarItem> tabSelection{fields, "tabSelection", TabBarItem::oneWay};
    Caption title{fields, "title", Text::searchTitle};
    /// Closes the component without a word to the host.
    Action<> back{*this, "back", [this] { completionCallback_(std::nullopt, std::nullopt); }};

    const std::shared_ptr<CustomTabBarView> tabBar = std::make_shared<CustomTabBarView>(tabSelection);
    const std::shared_ptr<OneWayView> oneWay = std::make_shared<OneWayView>(completionCallback_);
    const std::shared_ptr<RoundTripView> roundTrip = std::make_shared<RoundTripView>(completionCallback_);
    const std::shared_ptr<MultiCityView> multiCity = std::make_shared<MultiCityView>();
    const std::shared_ptr<FooterView> footer = std::make_shared<FooterView>();

private:
    Part tabBarPart_{*this, "tabBar", [this] { return tabBar; }};
    Part form_{*this, "form", [this]() -> std::shared_ptr<Screen> {
                   switch (tabSelection.get()) {
                   case TabBarItem::roundTrip:
                       return roundTrip;
                   case TabBarItem::multiCity:
                       return multiCity;
                   case TabBarItem::oneWay:
                       break;
                   }
                   return oneWay;
               }};
    Part footerPart_{*this, "footer", [this] { return footer; }};
};

} // namespace ombrivane
