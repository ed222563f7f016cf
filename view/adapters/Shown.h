#pragma once

#include "adapters/DocumentValue.h"
#include "booking/FormColour.h"
#include "dates/Day.h"
#include "richtext/ShownText.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace ombrivane::view {

/// What is read of the core, as a page may show it.
inline QString shown(const std::string& text) { return QString::fromStdString(shownText(text)); }
inline bool shown(bool value) { return value; }
inline int shown(int value) { return value; }
inline double shown(double value) { return value; }
inline QStringList shown(const std::vector<std::string>& texts) {
    QStringList list;
    for (const auto& text : texts)
        list.append(shown(text));
    return list;
}
/// A marked field is told by the name of its colour.
inline QString shown(FormColour colour) { return formColourNames.at(static_cast<std::size_t>(colour)); }
/// A day as "yyyy-MM-dd", empty while there is none.
inline QString shown(const std::optional<Day>& day) {
    return day ? QString::fromStdString(day->text()) : QString();
}

} // namespace ombrivane::view
