#include "appearance/Insets.h"

#include <algorithm>

namespace ombrivane::view {

Insets screenInsets(const QRectF& view, const QRectF& window, const QRectF& screen, const QRectF& free) {
    const QRectF seen = view.intersected(screen); // a page that slides in hangs off the screen
    if (!window.contains(screen) || !free.isValid() || seen.isEmpty()) return {};
    return {.left = std::max(0.0, free.left() - seen.left()),
            .top = std::max(0.0, free.top() - seen.top()),
            .right = std::max(0.0, seen.right() - free.right()),
            .bottom = std::max(0.0, seen.bottom() - free.bottom())};
}

double keyboardInset(const QRectF& view, const QRectF& keyboard) {
    return view.intersects(keyboard) ? view.bottom() - std::max(view.top(), keyboard.top()) : 0;
}

} // namespace ombrivane::view
