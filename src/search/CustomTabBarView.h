#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "search/TabBarItem.h"

#include <string>
#include <vector>

namespace ombrivane {

/// The tab bar. The third tab only says that it is not available.
class CustomTabBarView final : public Screen {
public:
    explicit CustomTabBarView(const Field<TabBarItem>& selected);

    Published<std::vector<TabBarItem>> tabs{
        fields, "tabs", {TabBarItem::oneWay, TabBarItem::roundTrip, TabBarItem::multiCity}};
    Binding<TabBarItem> selection;
    /// What the highlight is drawn from; it follows the selection.
    Published<TabBarItem> localSelection{fields, "localSelection", TabBarItem::oneWay};
    Published<bool> showAlert{fields, "showAlert"};
    Derived<std::vector<std::string>> labels;
    Action<TabBarItem> tap;

private:
    Link alert_;
    Subscription following_;
};

} // namespace ombrivane
