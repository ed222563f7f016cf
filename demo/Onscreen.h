#pragma once

#include "base/Json.h"

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

namespace ombrivane::demo {

/// Every text that can be seen in the window, with where it stands and what it is to assistive technology.
Json visibleTexts(const QQuickWindow& window);

/// The item with that object name that can be seen in the window, the topmost of several; nullptr where there
/// is none.
QQuickItem* visibleItem(const QQuickWindow& window, const QString& name);

/// A customer's finger goes down on the item's middle, or comes up from it.
void pressOn(const QQuickItem& item, bool down);

/// The picture in its 256 most frequent colours: a third of the bytes of a file.
QImage lightened(const QImage& picture);

} // namespace ombrivane::demo
