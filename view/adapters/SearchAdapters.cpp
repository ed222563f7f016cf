#include "adapters/SearchAdapters.h"

namespace ombrivane::view {

QStringList MainViewAdapter::tabLabels() const {
    QStringList labels;
    for (const auto& label : core().tabBar->labels.get())
        labels.append(shown(label));
    return labels;
}

} // namespace ombrivane::view
