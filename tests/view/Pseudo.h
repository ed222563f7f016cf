#pragma once

#include <QVariantMap>

namespace ombrivane::view {

/// All texts of the component in a language that nobody speaks: every letter carries an accent, and every
/// text is a third longer than the English. What stays without an accent is no text of the catalogue.
QVariantMap accentedTexts();

} // namespace ombrivane::view
