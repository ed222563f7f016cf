#pragma once

#include "Window.h"

namespace ombrivane::view {

/// Where the item stands in the window.
QRectF placeOf(const QQuickItem& item);

/// What holds for every page at every size: no warning, plain texts only, nothing clipped or beyond the
/// window, and for everything that can be operated a name and room for a finger.
void expectSound(Window& window);

} // namespace ombrivane::view
