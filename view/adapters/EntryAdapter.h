#pragma once

#include "adapters/MainViewAdapter.h"
#include "adapters/ScreenAdapter.h"
#include "session/EntryView.h"

#include <memory>

namespace ombrivane::view {

/// The root of all pages: nothing until the bootstrap has finished, then the search. By hand, since it reads
/// no key.
class EntryAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::MainViewAdapter* content READ content NOTIFY contentChanged FINAL)
    OMBRIVANE_SCREEN(EntryAdapter, ScreenAdapter, EntryView)

public:
    MainViewAdapter* content();
    Q_SIGNAL void contentChanged();

private:
    std::unique_ptr<MainViewAdapter> content_;
    Subscription watch_ = watch(core().view, [this] { emit contentChanged(); });
};

} // namespace ombrivane::view
