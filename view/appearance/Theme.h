#pragma once

#include "adapters/WordsAdapter.h"
#include "appearance/Appearance.h"
#include "appearance/DeviceLook.h"
#include "appearance/Insets.h"

#include <QObject>
#include <QQmlEngine>

#include <QSet>

#include <array>
#include <optional>

/// A colour of the pages by its name and its role.
#define OMBRIVANE_COLOUR(name, role)                                                                         \
    Q_PROPERTY(QColor name READ name NOTIFY changed FINAL)                                                   \
public:                                                                                                      \
    QColor name() const { return colours().role; }                                                           \
                                                                                                             \
private:

/// Letters of `points` at the text size of the device.
#define OMBRIVANE_LETTERS(name, points)                                                                      \
    Q_PROPERTY(double name READ name NOTIFY changed FINAL)                                                   \
public:                                                                                                      \
    double name() const { return (points)*look_.textScale; }                                                 \
                                                                                                             \
private:

/// A measure in points, the same for every wallet.
#define OMBRIVANE_MEASURE(name, points)                                                                      \
    Q_PROPERTY(double name READ name CONSTANT FINAL)                                                         \
public:                                                                                                      \
    static double name() { return points; }                                                                  \
                                                                                                             \
private:

/// Of the sides of the view that pages keep clear of, in points.
#define OMBRIVANE_INSET(name, side)                                                                          \
    Q_PROPERTY(double name READ name NOTIFY insetsChanged FINAL)                                             \
public:                                                                                                      \
    double name() const { return insets_.side; }                                                             \
                                                                                                             \
private:

namespace ombrivane::view {

/// Colours, type and measures of the pages of one view. What a page names as `Theme.ink` is that of the view
/// around it, and outside of every view that of the engine, which follows the device.
class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("attached to everything inside of a view")
    QML_ATTACHED(ombrivane::view::Theme)
    Q_PROPERTY(bool dark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)
    Q_PROPERTY(bool reducedMotion READ isMotionReduced NOTIFY changed FINAL)
    /// Of letters that are not emphasised.
    Q_PROPERTY(int textWeight READ textWeight NOTIFY changed FINAL)
    Q_PROPERTY(int readingWeight READ readingWeight NOTIFY changed FINAL)

    OMBRIVANE_COLOUR(canvasColor, canvas)
    OMBRIVANE_COLOUR(whiteColor, card)
    OMBRIVANE_COLOUR(whiteDarkGreyColor, card)
    OMBRIVANE_COLOUR(formBackgroundColor, card)
    OMBRIVANE_COLOUR(blackColor, ink)
    OMBRIVANE_COLOUR(placeHolderColor, quiet)
    OMBRIVANE_COLOUR(formBorderColor, fieldBorder)
    OMBRIVANE_COLOUR(canvasFormBorderColor, fieldBorder)
    OMBRIVANE_COLOUR(primaryColor, primary)
    OMBRIVANE_COLOUR(primaryTextColor, primaryText)
    OMBRIVANE_COLOUR(secondaryColor, secondary)
    OMBRIVANE_COLOUR(secondaryTextColor, secondaryText)
    OMBRIVANE_COLOUR(noticeColor, notice)
    OMBRIVANE_COLOUR(noticeFillColor, noticeFill)
    OMBRIVANE_COLOUR(calenderRangeColor, range)
    OMBRIVANE_COLOUR(segmentColor, segment)
    OMBRIVANE_COLOUR(filterBackgroundColor, filterBackground)
    OMBRIVANE_COLOUR(hairlineColor, hairline)
    Q_PROPERTY(QColor dimColor READ dimColor CONSTANT FINAL)

    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY fontFamilyChanged FINAL)
    /// What letters may reach beyond the advance of their text, in points: joined and stacked ones do.
    Q_PROPERTY(double overhang READ overhang NOTIFY fontFamilyChanged FINAL)
    OMBRIVANE_LETTERS(titleSize, 20)
    OMBRIVANE_LETTERS(sectionSize, 16)
    OMBRIVANE_LETTERS(timeSize, 20)
    OMBRIVANE_LETTERS(priceSize, 18)
    OMBRIVANE_LETTERS(bodySize, 15)
    OMBRIVANE_LETTERS(captionSize, 13)
    OMBRIVANE_LETTERS(smallSize, 12)

    OMBRIVANE_MEASURE(margin, 16)
    OMBRIVANE_MEASURE(gap, 12)
    OMBRIVANE_MEASURE(sectionGap, 24)
    Q_PROPERTY(double cardRadius READ cardRadius NOTIFY changed FINAL)
    Q_PROPERTY(double fieldRadius READ fieldRadius NOTIFY changed FINAL)
    OMBRIVANE_MEASURE(fieldHeight, 52)
    OMBRIVANE_MEASURE(target, 48)
    /// A header beyond this takes too much of its page to stay.
    OMBRIVANE_MEASURE(tallHeader, 72)
    OMBRIVANE_MEASURE(contentWidth, 560)
    /// From here on a window has room for a filter beside its list.
    OMBRIVANE_MEASURE(wideWidth, 840)
    OMBRIVANE_MEASURE(besideWidth, 360)

    OMBRIVANE_INSET(safeLeft, left)
    OMBRIVANE_INSET(safeTop, top)
    OMBRIVANE_INSET(safeRight, right)
    OMBRIVANE_INSET(safeBottom, bottom)
    OMBRIVANE_INSET(keyboardHeight, keyboard)

    /// In milliseconds.
    Q_PROPERTY(int stateDuration READ stateDuration NOTIFY changed FINAL)
    Q_PROPERTY(int pageDuration READ pageDuration NOTIFY changed FINAL)

    /// The wallet's picture; empty for the component's own mark.
    Q_PROPERTY(QUrl logo READ logo NOTIFY changed FINAL)
    /// The wallet's words before the mark; empty where they are the component's own, or where there are none.
    Q_PROPERTY(QString poweredBy READ poweredBy NOTIFY changed FINAL)
    Q_PROPERTY(bool hidesPoweredBy READ hidesPoweredBy NOTIFY changed FINAL)

public:
    /// Lives as long as `engine` unless it is retired before.
    explicit Theme(QQmlEngine& engine);

    /// The theme of the view in which `object` was made, which all objects of the view share.
    static Theme* qmlAttachedProperties(QObject* object);

    /// Takes effect at once. What is too faint is told to the diagnostics when the turn ends, each pair once.
    void setAppearance(const Appearance& appearance);
    /// Takes effect at once.
    void setLook(const Look& look);
    /// Takes effect at once.
    void setInsets(const Insets& insets);

    bool isDark() const { return look_.dark; }
    double textScale() const { return look_.textScale; }
    bool isMotionReduced() const { return look_.reducedMotion; }
    int textWeight() const;
    /// Of a long text.
    int readingWeight() const;
    static QColor dimColor() { return QColor(0, 0, 0, 128); }
    QString fontFamily() { return lettering().family; }
    double overhang() { return lettering().overhang; }
    double cardRadius() const;
    double fieldRadius() const;
    int stateDuration() const { return look_.reducedMotion ? 0 : 150; }
    int pageDuration() const { return look_.reducedMotion ? 0 : 250; }
    QUrl logo() const { return appearance_.logo; }
    QString poweredBy() const { return appearance_.poweredBy.value_or(QString()); }
    bool hidesPoweredBy() const { return appearance_.poweredBy && appearance_.poweredBy->isEmpty(); }

    /// Its view goes: it follows once all has gone that was made in the view and may still ask for it.
    void retire();

    Q_SIGNAL void changed();
    Q_SIGNAL void insetsChanged();
    Q_SIGNAL void fontFamilyChanged();

private:
    struct Lettering {
        QString family;
        double overhang = 1;
        bool operator==(const Lettering&) const = default;
    };

    const Colours& colours() const { return colours_[look_.dark ? 1 : 0]; }
    const Lettering& lettering();
    Lettering chosenLettering() const;
    void chooseLettering();
    void complain();

    Appearance appearance_;
    Look look_;
    Insets insets_;
    std::array<Colours, 2> colours_{Colours::own(false), Colours::own(true)};
    QStringList complaints_; ///< of the colours as they are now
    QSet<QString> told_;     ///< complaints that the diagnostics have heard
    bool complains_ = false; ///< whether `complain` is due
    WordsAdapter words_;     ///< tells when the letters of the language have changed
    /// None until a text asks: the device's list of fonts costs more than the first frame, which has no text.
    std::optional<Lettering> lettering_;
};

} // namespace ombrivane::view
