#include "items/Announcement.h"

#include <QAccessible>

namespace ombrivane::view {

void Announcement::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    emit textChanged();
    if (isComponentComplete()) say();
}

void Announcement::componentComplete() {
    QQuickItem::componentComplete();
    say();
}

void Announcement::say() {
    if (text_.isEmpty()) return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace ombrivane::view
