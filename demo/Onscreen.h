#pragma once

#include "base/Json.h"

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

namespace ombrivane::demo {

/// Every text that can be seen in the window, with where it stands and what it is to assistive technology.
Json visibleTexts(const QQuickWindow& window);

/// The shown item with that object name, the topmost of several, and of those inside of the window where one
/// is; nullptr where there is none.
QQuickItem* visibleItem(const QQuickWindow& window, const QString& name);

/// Whether its middle is inside of the window, and so can be pressed.
bool isInside(const QQuickItem& item);

/// A customer's finger goes down on the item's middle, or comes up from it.
void pressOn(const QQuickItem& item, bool down);

/// The picture in its 256 most frequent colours: a third of the bytes of a file.
QImage lightened(const QImage& picture);

} // namespace ombrivane::demo
