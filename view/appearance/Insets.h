#pragma once

#include <QRectF>

namespace ombrivane::view {

/// How much of the sides of a view is not its own, in points: notches and bars, and at the lower end the
/// keyboard on the screen.
struct Insets {
    double left = 0;     ///< in points
    double top = 0;      ///< in points
    double right = 0;    ///< in points
    double bottom = 0;   ///< in points
    double keyboard = 0; ///< from the view's lower end upwards, what `bottom` tells included

    /// Member by member.
    bool operator==(const Insets&) const = default;
};

/// What a screen keeps for itself of `view`, a part of `window`: all but `free`, where the window fills the
/// screen. One that does not is kept clear of bars by whoever placed it. All in the coordinates of the
/// screen.
Insets screenInsets(const QRectF& view, const QRectF& window, const QRectF& screen, const QRectF& free);

/// How much of the lower end of `view` a keyboard covers, both in the coordinates of the window.
double keyboardInset(const QRectF& view, const QRectF& keyboard);

} // namespace ombrivane::view
