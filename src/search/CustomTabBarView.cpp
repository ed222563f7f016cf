#include "search/CustomTabBarView.h"

#include "parts/AlertView.h"
#include "words/Words.h"

namespace ombrivane {

std::vector<std::string> CustomTabBarView::labelTabs() const {
    std::vector<std::string> texts;
    for (const TabBarItem tab : tabs.get()) {
        texts.push_back(said(tabBarWordings.at(static_cast<std::size_t>(tab)).label));
    }
    return texts;
}

void CustomTabBarView::choose(TabBarItem tab) {
    if (tab == TabBarItem::multiCity) {
        showAlert = true;
    } else {
        selection = tab;
    }
}

std::shared_ptr<Screen> CustomTabBarView::makeAlert() {
    return std::make_shared<AlertView>(said(Text::alertSorry), said(Text::tabNotAvailable));
}

} // namespace ombrivane
