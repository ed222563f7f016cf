#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointF>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace ombrivane::view {

/// The lines under stretches of a plain text, drawn over the text item that shows it: the same width, font
/// and distance of lines lay out the same lines. A text with marks of its own would have to be read as
/// markup.
class Underlines : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Where each stretch begins and how long it is, in turn.
    Q_PROPERTY(QList<int> stretches MEMBER stretches_ NOTIFY changed FINAL)
    Q_PROPERTY(QString text MEMBER text_ NOTIFY changed FINAL)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    /// Of its lines, as the text item says: `effectiveHorizontalAlignment`.
    Q_PROPERTY(int alignment MEMBER alignment_ NOTIFY changed FINAL)
    /// Where the text begins in the item; its lines end at the item's right side.
    Q_PROPERTY(QPointF origin MEMBER origin_ NOTIFY changed FINAL)
    /// The least thickness of a line, in points.
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed FINAL)
    /// In heights of a line.
    Q_PROPERTY(double lineHeight MEMBER lineHeight_ NOTIFY changed FINAL)

public:
    explicit Underlines(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    Q_SIGNAL void changed();

private:
    QList<int> stretches_;
    QString text_;
    QFont font_;
    QColor color_;
    int alignment_ = Qt::AlignLeft;
    QPointF origin_;
    double strength_ = 1;
    double lineHeight_ = 1;
};

} // namespace ombrivane::view
