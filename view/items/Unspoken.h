#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

#include <vector>

namespace ombrivane::view {

/// Takes an item and everything in it away from assistive technology while something covers it: of the
/// toolkit's own means one hides a single item, and the other what is seen as well.
class Unspoken : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item MEMBER item_ WRITE setItem NOTIFY changed FINAL)
    Q_PROPERTY(bool when MEMBER when_ WRITE setWhen NOTIFY changed FINAL)

public:
    explicit Unspoken(QObject* parent = nullptr) : QObject(parent) {}

    void setItem(QQuickItem* item);
    void setWhen(bool when);

    Q_SIGNAL void changed();

private:
    void update();
    Q_SLOT void updateSoon();
    void hush(QQuickItem& item);
    void release();

    QPointer<QQuickItem> item_;
    bool when_ = false;
    bool isDue_ = false;
    std::vector<QPointer<QObject>> hushed_; ///< what tells assistive technology of an item
    std::vector<QMetaObject::Connection> watches_;
};

} // namespace ombrivane::view
