#pragma once

#include "appearance/AppearanceTable.h"
#include "appearance/DeviceLook.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

#include <optional>

namespace ombrivane::view {

class Theme;

/// What everything inside of its document reads its colours, type and measures from: the root of
/// `OmbrivaneView.qml`.
///
/// What the host has not said follows the device, and does so again when it is set to `undefined`.
class ThemedScope : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The wallet's own table; none is the component's own.
    Q_PROPERTY(ombrivane::view::AppearanceTable* appearance READ appearanceTable WRITE setAppearanceTable
                   NOTIFY appearanceChanged FINAL)
    /// Whether the pages are drawn for a dark screen.
    Q_PROPERTY(bool dark READ isDark WRITE setDark RESET resetDark NOTIFY lookChanged FINAL)
    /// The size of all letters, as a multiple of their usual size.
    Q_PROPERTY(
        double textScale READ textScale WRITE setTextScale RESET resetTextScale NOTIFY lookChanged FINAL)
    /// Whether nothing moves that needs not.
    Q_PROPERTY(bool reducedMotion READ isMotionReduced WRITE setMotionReduced RESET resetMotionReduced NOTIFY
                   lookChanged FINAL)
    /// Whether what is else written in regular letters is written in bold ones.
    Q_PROPERTY(bool boldText READ isTextBold WRITE setTextBold RESET resetTextBold NOTIFY lookChanged FINAL)

public:
    explicit ThemedScope(QQuickItem* parent = nullptr);
    ~ThemedScope() override;

    /// For a host in C++, in the place of a table of QML; takes effect at once. Main thread, as all of this.
    void setAppearance(const Appearance& appearance);

    AppearanceTable* appearanceTable() const { return table_; }
    bool isDark() const { return look().dark; }
    double textScale() const { return look().textScale; }
    bool isMotionReduced() const { return look().reducedMotion; }
    bool isTextBold() const { return look().boldText; }
    void setAppearanceTable(AppearanceTable* table);
    void setDark(std::optional<bool> dark);
    void setTextScale(std::optional<double> textScale);
    void setMotionReduced(std::optional<bool> reduced);
    void setTextBold(std::optional<bool> bold);
    void resetDark() { setDark(std::nullopt); }
    void resetTextScale() { setTextScale(std::nullopt); }
    void resetMotionReduced() { setMotionReduced(std::nullopt); }
    void resetTextBold() { setTextBold(std::nullopt); }

    /// Of all that is inside. It outlives this, and everything that was made inside.
    Theme* theme();

    Q_SIGNAL void appearanceChanged();
    Q_SIGNAL void lookChanged();

private:
    /// What the host has said, and what else the device says.
    Look look() const;
    void showLook();

    QPointer<AppearanceTable> table_;
    Appearance appearance_;
    std::optional<bool> dark_;
    std::optional<double> textScale_;
    std::optional<bool> reducedMotion_;
    std::optional<bool> boldText_;
    QPointer<Theme> theme_;
};

} // namespace ombrivane::view
