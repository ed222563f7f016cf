#include "search/CustomTabBarView.h"

#include "parts/AlertView.h"

namespace ombrivane {

CustomTabBarView::CustomTabBarView(const Field<TabBarItem>& selected) :
    Screen("CustomTabBarView"),
    selection(fields, "selection", selected),
    labels(fields, "labels",
           [this] {
               std::vector<std::string> texts;
               for (const TabBarItem tab : tabs.get()) {
                   texts.emplace_back(tabBarWordings.at(static_cast<std::size_t>(tab)).label);
               }
               return texts;
           }),
    tap(*this, "tap",
        [this](TabBarItem tab) {
            if (tab == TabBarItem::multiCity) {
                showAlert = true;
            } else {
                selection = tab;
            }
        }),
    alert_(*this, Presentation::alert, showAlert, [] {
        return std::make_shared<AlertView>("Sorry!", "This feature is not available at the moment.");
    }) {
    localSelection = selection.get();
    following_ = selection.observe([this] { localSelection = selection.get(); });
}

} // namespace ombrivane
