#include "appearance/Insets.h"

#include <algorithm>

namespace ombrivane::view {

Insets screenInsets(const QRectF& view, const QRectF& window, const QRectF& screen, const QRectF& free) {
    if (!window.contains(screen) || !free.isValid()) return {};
    return {.left = std::max(0.0, free.left() - view.left()),
            .top = std::max(0.0, free.top() - view.top()),
            .right = std::max(0.0, view.right() - free.right()),
            .bottom = std::max(0.0, view.bottom() - free.bottom())};
}

double keyboardInset(const QRectF& view, const QRectF& keyboard) {
    return view.intersects(keyboard) ? view.bottom() - std::max(view.top(), keyboard.top()) : 0;
}

} // namespace ombrivane::view
