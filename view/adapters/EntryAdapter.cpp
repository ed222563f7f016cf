#include "adapters/EntryAdapter.h"

namespace ombrivane::view {

MainViewAdapter* EntryAdapter::content() {
    const auto screen = core().view.get();
    if (!screen) return nullptr;
    if (!content_ || content_->screen() != screen) content_ = std::make_unique<MainViewAdapter>(screen);
    return content_.get();
}

} // namespace ombrivane::view
