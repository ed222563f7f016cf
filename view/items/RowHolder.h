#pragma once

#include "adapters/ScreenAdapter.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

namespace ombrivane::view {

/// The place of a row in a long list, and a focus scope. It owns the adapter of the row that it shows, and
/// lets go of it as soon as it shows another or goes: left to the engine, the adapters of all rows scrolled
/// by would be collected at once, in the middle of a movement.
class RowHolder : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ombrivane::view::ScreenAdapter* held READ held WRITE setHeld NOTIFY heldChanged FINAL)

public:
    explicit RowHolder(QQuickItem* parent = nullptr) : QQuickItem(parent) { setFlag(ItemIsFocusScope); }
    ~RowHolder() override;

    ScreenAdapter* held() const { return held_; }
    void setHeld(ScreenAdapter* adapter);

    Q_SIGNAL void heldChanged();

private:
    void letGo();

    QPointer<ScreenAdapter> held_;
};

} // namespace ombrivane::view
