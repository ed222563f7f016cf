#include "items/Silhouette.h"

#include "items/PictureItem.h"

#include <QPainter>

#include <algorithm>

namespace ombrivane::view {
namespace {

constexpr double radius = 4;
constexpr double lineShare = 0.7; ///< of a text's height

/// The part of a text item in which its text stands.
QRectF shapeOfText(const QQuickItem& text) {
    const double width = std::min(text.width(), text.property("contentWidth").toDouble());
    const double height = text.height() * lineShare;
    const int alignment = text.property("effectiveHorizontalAlignment").toInt();
    const double free = text.width() - width;
    const double x = alignment == Qt::AlignRight ? free : alignment == Qt::AlignHCenter ? free / 2 : 0;
    return {x, (text.height() - height) / 2, width, height};
}

} // namespace

void Silhouette::setOf(QQuickItem* item) {
    if (item == of_) return;
    if (of_ != nullptr) of_->disconnect(this);
    of_ = item;
    if (of_ != nullptr) {
        connect(of_, &QQuickItem::widthChanged, this, [this] { update(); });
        connect(of_, &QQuickItem::heightChanged, this, [this] { update(); });
    }
    emit ofChanged();
    update();
}

void Silhouette::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    emit colorChanged();
    update();
}

void Silhouette::paint(QPainter* painter) {
    if (of_ == nullptr) return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(color_);
    paintShapes(*painter, *of_);
}

void Silhouette::paintShapes(QPainter& painter, const QQuickItem& item) const {
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible()) continue;
        if (child->inherits("QQuickText")) {
            painter.drawRoundedRect(child->mapRectToItem(this, shapeOfText(*child)), radius, radius);
        } else if (qobject_cast<const PictureItem*>(child) != nullptr) {
            painter.drawRoundedRect(
                child->mapRectToItem(this, QRectF(QPointF(), child->size())), 2 * radius, 2 * radius);
        } else {
            paintShapes(painter, *child);
        }
    }
}

} // namespace ombrivane::view
