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

#include <memory>
#include <string>

namespace ombrivane {

/// The first screen: title bar, tab bar and the form of the chosen tab.
class MainView final : public Screen {
public:
    explicit MainView(CompletionCallback completionCallback);

    Published<TabBarItem> tabSelection{fields, "tabSelection", TabBarItem::oneWay};
    Derived<std::string> title{fields, "title", [] { return std::string("Flight Search"); }};
    /// Closes the component without a word to the host.
    Action<> back;

    const std::shared_ptr<CustomTabBarView> tabBar;
    const std::shared_ptr<OneWayView> oneWay;
    const std::shared_ptr<RoundTripView> roundTrip;
    const std::shared_ptr<MultiCityView> multiCity;
    const std::shared_ptr<FooterView> footer;

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
