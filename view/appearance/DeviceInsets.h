#pragma once

#include "appearance/Insets.h"

#include <QPointer>
#include <QQuickItem>
#include <QScreen>

namespace ombrivane::view {

/// What the device keeps for itself of one item, as far as Qt knows it: what of its screen is not available,
/// and the place of the keyboard. Main thread.
class DeviceInsets : public QObject {
    Q_OBJECT

public:
    /// Of `item`, which outlives this.
    explicit DeviceInsets(QQuickItem& item);

    const Insets& insets() const { return insets_; } ///< as they were read last
    /// Looks again; for what tells nobody when it changes, such as the place of the item.
    void read();

    Q_SIGNAL void changed(); ///< other ones were read

private:
    void watch(QQuickWindow* window);
    void watchScreen(QScreen* screen);

    QQuickItem& item_;
    QPointer<QQuickWindow> window_;
    QPointer<QScreen> screen_;
    Insets insets_;
};

} // namespace ombrivane::view
