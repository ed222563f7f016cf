#pragma once

#include "adapters/DocumentValue.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace ombrivane::view {

/// The picture of a travel document, cut to the shape of this item with round corners. It is decoded when it
/// is drawn, no larger than it is shown.
class DocumentItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Document)
    Q_PROPERTY(ombrivane::view::DocumentValue value READ value WRITE setValue NOTIFY valueChanged FINAL)
    /// Of its corners, in points.
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY radiusChanged FINAL)

public:
    explicit DocumentItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) { setAntialiasing(true); }

    const DocumentValue& value() const { return value_; }
    void setValue(const DocumentValue& value);

    void paint(QPainter* painter) override;

    Q_SIGNAL void valueChanged();
    Q_SIGNAL void radiusChanged();

private:
    DocumentValue value_;
    double radius_ = 0;
    QImage drawn_;   ///< of `value_`, which covers `drawnFor_`
    QSize drawnFor_; ///< in pixels
};

} // namespace ombrivane::view
