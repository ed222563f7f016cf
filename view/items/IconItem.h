#pragma once

#include "keyed/Observable.h"

#include <QColor>
#include <QImage>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace ombrivane::view {

/// A drawing of the component's own resources by its name: an icon in one colour, or a picture as it is. One
/// that fades into what lies behind it takes the colour of that, too. What points the way, as an arrow does,
/// points the other way in a language that is written from the right.
class IconItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Icon)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /// What lies behind it, for a drawing that fades into that.
    Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged FINAL)
    /// Uses the drawing for dark surroundings, where there is one.
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged FINAL)

public:
    explicit IconItem(QQuickItem* parent = nullptr);

    const QString& name() const { return name_; }
    void setName(const QString& name);
    const QColor& color() const { return color_; }
    void setColor(const QColor& color);
    const QColor& ground() const { return ground_; }
    void setGround(const QColor& ground);
    bool dark() const { return dark_; }
    void setDark(bool dark);

    void paint(QPainter* painter) override;

    Q_SIGNAL void nameChanged();
    Q_SIGNAL void colorChanged();
    Q_SIGNAL void groundChanged();
    Q_SIGNAL void darkChanged();

private:
    QByteArray drawing() const;
    /// The drawing in the size of this item, `scale` pixels to a point.
    QImage picture(double scale) const;

    QString name_;
    QColor color_ = Qt::transparent;
    QColor ground_ = Qt::transparent;
    bool dark_ = false;
    Subscription turns_; ///< while the drawing points the way
};

} // namespace ombrivane::view
