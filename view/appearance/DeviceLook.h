#pragma once

#include <QObject>

namespace ombrivane::view {

/// How the pages of a view are drawn, besides their colours.
struct Look {
    bool dark = false;          ///< for a dark screen
    double textScale = 1;       ///< the size of all letters, as a multiple of their usual size
    bool reducedMotion = false; ///< nothing moves that needs not
    bool boldText = false;      ///< what is else written in regular letters is written in bold ones

    /// Member by member.
    bool operator==(const Look&) const = default;
};

/// What the device tells of how it wants pages to be drawn. One for the life of the application; main thread.
class DeviceLook : public QObject {
    Q_OBJECT

public:
    static DeviceLook& shared();

    /// Dark where the device says so, or where the application's palette is light on dark. Letters are as
    /// large as those of the application's font where these are larger than the component's own, at most
    /// twice as large, and bold where these are bold. Motion is as ever: no device tells Qt of it.
    const Look& look() const { return look_; }

    Q_SIGNAL void changed();

private:
    explicit DeviceLook(QObject* parent);
    Q_SLOT void read();

    Look look_;
};

} // namespace ombrivane::view
