#pragma once

#include "appearance/Colours.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace ombrivane::view {

/// What a wallet decides of how its view of the component looks. What is not given is the component's own.
///
/// A colour that could not be read on what lies under it is drawn as the nearest shade of its hue that can,
/// and told to the diagnostics of the platform once.
struct Appearance {
    Colours light; ///< for a light screen
    Colours dark;  ///< for a dark screen
    /// The family of all letters. Where the language has letters that it lacks, a family of the device is
    /// taken. Empty: that of the first of `fontFaces`, or the component's own.
    QString fontFamily;
    /// Files of fonts, as "file:" or "qrc:" addresses: the faces of `fontFamily`. They are added to those of
    /// the application, once.
    QList<QUrl> fontFaces;
    std::optional<double> cornerRadius; ///< of cards, in points, 0 or more; fields have two points less
    QUrl logo;                          ///< a picture in the place of the mark under the search form
    /// What stands before the mark; nothing stands there where it is empty. Absent: the component's own text
    /// in the customer's language.
    std::optional<QString> poweredBy;

    /// Member by member.
    bool operator==(const Appearance&) const = default;
};

} // namespace ombrivane::view
