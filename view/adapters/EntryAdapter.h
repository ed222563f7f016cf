#pragma once

#include "adapters/MainViewAdapter.h"
#include "adapters/ScreenAdapter.h"
#include "search/MainView.h"
#include "session/EntryView.h"

namespace ombrivane::view {

/// The root of all pages: a placeholder until the bootstrap has finished, then the search, whose page may be
/// made before. By hand, since it reads no key.
class EntryAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(bool hasStarted READ hasStarted NOTIFY hasStartedChanged FINAL)
    OMBRIVANE_SCREEN(EntryAdapter, ScreenAdapter, EntryView)

    OMBRIVANE_PART(MainViewAdapter, search, core().search)

public:
    bool hasStarted() const { return core().view.get() != nullptr; }
    Q_SIGNAL void hasStartedChanged();
    /// The view goes; the page follows with a later turn of the event loop.
    Q_SIGNAL void left();

private:
    Subscription watch_ = watch(core().view, [this] { emit hasStartedChanged(); });
};

} // namespace ombrivane::view
