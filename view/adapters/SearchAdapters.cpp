#include "adapters/SearchAdapters.h"

namespace ombrivane::view {

QList<QString> MainViewAdapter::tabLabels() const {
    QList<QString> labels;
    for (const auto& label : core().tabBar->labels.get())
        labels.append(shown(label));
    return labels;
}

} // namespace ombrivane::view
