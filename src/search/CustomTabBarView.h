#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "search/TabBarItem.h"

#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// The tab bar. The third tab only says that it is not available.
class CustomTabBarView final : public Screen {
public:
    explicit CustomTabBarView(const Field<TabBarItem>& selected) :
        Screen("CustomTabBarView"), selection(fields, "selection", selected) {}

    Published<std::vector<TabBarItem>> tabs{
        fields, "tabs", {TabBarItem::oneWay, TabBarItem::roundTrip, TabBarItem::multiCity}};
    Binding<TabBarItem> selection;
    /// What the highlight is drawn from; it follows the selection.
    Published<TabBarItem> localSelection{fields, "localSelection", selection.get()};
    Published<bool> showAlert{fields, "showAlert"};
    Derived<std::vector<std::string>> labels{fields, "labels", [this] { return labelTabs(); }};
    Action<TabBarItem> tap{*this, "tap", [this](TabBarItem tab) { choose(tab); }};

private:
    std::vector<std::string> labelTabs() const;
    void choose(TabBarItem tab);
    static std::shared_ptr<Screen> makeAlert();

    Link alert_{*this, Presentation::alert, showAlert, [] { return makeAlert(); }};
    Subscription following_ = selection.observe([this] { localSelection = selection.get(); });
};

} // namespace ombrivane
