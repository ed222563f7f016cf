#include "adapters/MainViewAdapter.h"

namespace ombrivane::view {

QString MainViewAdapter::tabLabel(int index) const {
    const auto labels = core().tabBar->labels.get();
    return shown(labels.at(static_cast<std::size_t>(index)));
}

} // namespace ombrivane::view
