#include "items/RowHolder.h"

namespace ombrivane::view {

RowHolder::~RowHolder() { letGo(); }

void RowHolder::setHeld(ScreenAdapter* adapter) {
    if (adapter == held_) return;
    letGo();
    held_ = adapter;
    if (adapter != nullptr) QQmlEngine::setObjectOwnership(adapter, QQmlEngine::CppOwnership);
    emit heldChanged();
}

/// Later, since what the row shows may still be bound to it.
void RowHolder::letGo() {
    if (held_) held_->deleteLater();
}

} // namespace ombrivane::view
