#pragma once

#include <QColor>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickPaintedItem>

class QQuickWindow;

namespace ombrivane::view {

/// The one ring of the focus, over everything in the item that it lies in: outside of the control that has
/// the focus, 2 points of `canvas` and around them 2 of `ink`, wherever the control stands and moves to. It
/// is shown once a key was used and until a finger or mouse is, around a field that is typed into always.
///
/// What it goes around comes into view in every list and page that scrolls. A control may say, as properties:
/// `ringed`, the item inside of it that the ring goes around, in place of its background; a list `coveredTop`
/// and `coveredBottom`, in points, what lies over its ends.
class FocusRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor canvas MEMBER canvas_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor ink MEMBER ink_ NOTIFY changed FINAL)

public:
    explicit FocusRing(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    Q_SIGNAL void changed();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void watch(QQuickWindow* window);
    /// What has the focus and is shown to have it, nullptr for nothing.
    QQuickItem* focused() const;
    void follow();
    void reveal(const QQuickItem& control);

    QPointer<QQuickWindow> watched_;
    QColor canvas_;
    QColor ink_;
    double radius_ = 0;
    bool byKeys_ = false;
    const QQuickItem* last_ = nullptr; ///< what was focused at the last frame, only to compare with
    int reveals_ = 0;                  ///< so many frames more it is brought into view
};

} // namespace ombrivane::view
