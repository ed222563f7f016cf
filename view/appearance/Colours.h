#pragma once

#include <QColor>
#include <QQmlEngine>

namespace ombrivane::view {

/// The colours of the pages by role, for a light or for a dark screen. A role that is not valid, as each is
/// until it is given, keeps the component's own colour.
struct Colours {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QColor canvas MEMBER canvas FINAL)
    Q_PROPERTY(QColor card MEMBER card FINAL)
    Q_PROPERTY(QColor ink MEMBER ink FINAL)
    Q_PROPERTY(QColor quiet MEMBER quiet FINAL)
    Q_PROPERTY(QColor fieldBorder MEMBER fieldBorder FINAL)
    Q_PROPERTY(QColor primary MEMBER primary FINAL)
    Q_PROPERTY(QColor primaryText MEMBER primaryText FINAL)
    Q_PROPERTY(QColor secondary MEMBER secondary FINAL)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText FINAL)
    Q_PROPERTY(QColor notice MEMBER notice FINAL)
    Q_PROPERTY(QColor noticeFill MEMBER noticeFill FINAL)
    Q_PROPERTY(QColor range MEMBER range FINAL)
    Q_PROPERTY(QColor segment MEMBER segment FINAL)
    Q_PROPERTY(QColor filterBackground MEMBER filterBackground FINAL)
    Q_PROPERTY(QColor hairline MEMBER hairline FINAL)

public:
    QColor canvas{};           ///< behind everything
    QColor card{};             ///< cards, sheets and fields
    QColor ink{};              ///< text
    QColor quiet{};            ///< placeholders and captions
    QColor fieldBorder{};      ///< around a field that nobody has touched
    QColor primary{};          ///< what is to be looked at: the main action, a marked field, a refusal
    QColor primaryText{};      ///< on `primary`
    QColor secondary{};        ///< what goes or is chosen: a day, a card, a tab, a field in order
    QColor secondaryText{};    ///< on `secondary`
    QColor notice{};           ///< a hint, on `noticeFill`
    QColor noticeFill{};       ///< behind a hint
    QColor range{};            ///< the days between departure and return
    QColor segment{};          ///< behind the segments of an unfolded offer
    QColor filterBackground{}; ///< behind the filter
    QColor hairline{};         ///< separates, and carries no meaning

    /// Member by member.
    bool operator==(const Colours&) const = default;

    /// The component's own colours.
    static Colours own(bool dark);
};

} // namespace ombrivane::view
