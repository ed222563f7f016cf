#pragma once

#include "adapters/screens/FooterAdapter.h"
#include "adapters/screens/MainViewProperties.h"
#include "adapters/screens/SearchFormAdapter.h"

namespace ombrivane::view {

/// The search. By hand, since the page holds both forms at once where the screen shows one as its part, and
/// since it draws the tabs by their number.
class MainViewAdapter : public ombrivane::view::MainViewProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(int tabCount READ tabCount CONSTANT FINAL)
    Q_PROPERTY(int tab READ tab NOTIFY tabChanged FINAL)
    OMBRIVANE_FIELD(QStringList, tabLabels, core().tabBar->labels)
    OMBRIVANE_PART(SearchFormAdapter, oneWay, core().oneWay)
    OMBRIVANE_PART(SearchFormAdapter, roundTrip, core().roundTrip)
    OMBRIVANE_PART(FooterAdapter, footer, core().footer)

public:
    using MainViewProperties::MainViewProperties;

    int tabCount() const { return static_cast<int>(core().tabBar->tabs->size()); }
    int tab() const { return static_cast<int>(core().tabBar->localSelection.get()); }
    Q_INVOKABLE void tapTab(int index) { core().tabBar->tap(static_cast<TabBarItem>(index)); }
    Q_SIGNAL void tabChanged();

private:
    Subscription tabWatch_ = watch(core().tabBar->localSelection, [this] { emit tabChanged(); });
};

} // namespace ombrivane::view
