#pragma once

#include <QColor>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace ombrivane::view {

/// The shapes of the texts and pictures of another item, in one colour: what is seen while their content is
/// awaited. It covers that item; the shapes are taken whenever its size changes.
class Silhouette : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* of READ of WRITE setOf NOTIFY ofChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    explicit Silhouette(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) { setAntialiasing(true); }

    QQuickItem* of() const { return of_; }
    void setOf(QQuickItem* item);
    const QColor& color() const { return color_; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

    Q_SIGNAL void ofChanged();
    Q_SIGNAL void colorChanged();

private:
    void paintShapes(QPainter& painter, const QQuickItem& item) const;

    QPointer<QQuickItem> of_;
    QColor color_;
};

} // namespace ombrivane::view
