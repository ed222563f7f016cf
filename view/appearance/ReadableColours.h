#pragma once

#include "appearance/Colours.h"

#include <QStringList>

namespace ombrivane::view {

/// Colours as they are drawn, and what had to be changed for it.
struct ReadableColours {
    Colours shown;
    /// One line for each pair that was too faint: `Appearance: light "quiet" on "card" has 2.14 to 1 of
    /// the 4.5 to 1 that it needs; drawn as #6a6a6a`.
    QStringList complaints;
};

/// `given`, with the component's own colours where it has none, for a dark screen or a light one. Text has at
/// least 4.5 to 1 on whatever it is drawn on, the border of a field 3 to 1.
ReadableColours readable(const Colours& given, bool dark);

} // namespace ombrivane::view
