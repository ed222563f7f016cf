#include "search/MainView.h"

namespace ombrivane {

MainView::MainView(CompletionCallback completionCallback) :
    Screen("MainView"),
    back(*this, "back", [completionCallback] { completionCallback(std::nullopt, std::nullopt); }),
    tabBar(std::make_shared<CustomTabBarView>(tabSelection)),
    oneWay(std::make_shared<OneWayView>(completionCallback)),
    roundTrip(std::make_shared<RoundTripView>(completionCallback)),
    multiCity(std::make_shared<MultiCityView>()),
    footer(std::make_shared<FooterView>()) {}

} // namespace ombrivane
