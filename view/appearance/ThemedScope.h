#pragma once

#include "appearance/AppearanceTable.h"
#include "appearance/DeviceInsets.h"
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
    /// How much of its left side a notch or a bar takes, in points; pages keep clear of it, colours do not.
    Q_PROPERTY(double safeLeft READ safeLeft WRITE setSafeLeft RESET resetSafeLeft NOTIFY insetsChanged FINAL)
    /// The same of its upper side.
    Q_PROPERTY(double safeTop READ safeTop WRITE setSafeTop RESET resetSafeTop NOTIFY insetsChanged FINAL)
    /// The same of its right side.
    Q_PROPERTY(
        double safeRight READ safeRight WRITE setSafeRight RESET resetSafeRight NOTIFY insetsChanged FINAL)
    /// The same of its lower side.
    Q_PROPERTY(double safeBottom READ safeBottom WRITE setSafeBottom RESET resetSafeBottom NOTIFY
                   insetsChanged FINAL)
    /// How much of its lower end a keyboard on the screen covers, in points.
    Q_PROPERTY(double keyboardHeight READ keyboardHeight WRITE setKeyboardHeight RESET resetKeyboardHeight
                   NOTIFY insetsChanged FINAL)
    /// Whether what is else written in regular letters is written in bold ones.
    Q_PROPERTY(bool boldText READ isTextBold WRITE setTextBold RESET resetTextBold NOTIFY lookChanged FINAL)

public:
    explicit ThemedScope(QQuickItem* parent = nullptr);
    ~ThemedScope() override;

    /// For a host in C++, in the place of a table of QML; takes effect at once. Main thread, as all of this.
    void setAppearance(const Appearance& appearance);

    /// The table of QML; nullptr without one.
    AppearanceTable* appearanceTable() const { return table_; }
    /// From here on, with each of its changes; nullptr is the component's own appearance.
    void setAppearanceTable(AppearanceTable* table);
    /// As the pages are drawn: what the host has said, or else the device.
    bool isDark() const { return look().dark; }
    /// The same of the size of letters.
    double textScale() const { return look().textScale; }
    /// The same of motion.
    bool isMotionReduced() const { return look().reducedMotion; }
    /// The same of the weight of letters.
    bool isTextBold() const { return look().boldText; }
    /// Absent: as the device says.
    void setDark(std::optional<bool> dark);
    /// Absent: as the device says.
    void setTextScale(std::optional<double> textScale);
    /// Absent: as the device says.
    void setMotionReduced(std::optional<bool> reduced);
    /// Absent: as the device says.
    void setTextBold(std::optional<bool> bold);
    /// For QML, as the three that follow: set to `undefined`.
    void resetDark() { setDark(std::nullopt); }
    /// For QML.
    void resetTextScale() { setTextScale(std::nullopt); }
    /// For QML.
    void resetMotionReduced() { setMotionReduced(std::nullopt); }
    /// For QML.
    void resetTextBold() { setTextBold(std::nullopt); }

    /// As the pages keep clear of it: what the host has said, or else what the device says.
    double safeLeft() const { return insets().left; }
    /// The same of the upper side.
    double safeTop() const { return insets().top; }
    /// The same of the right side.
    double safeRight() const { return insets().right; }
    /// The same of the lower side.
    double safeBottom() const { return insets().bottom; }
    /// The same of the keyboard.
    double keyboardHeight() const { return insets().keyboard; }
    /// Absent, as in the four that follow: as the device says.
    void setSafeLeft(std::optional<double> points) { setInset(safeLeft_, points); }
    /// See `setSafeLeft`.
    void setSafeTop(std::optional<double> points) { setInset(safeTop_, points); }
    /// See `setSafeLeft`.
    void setSafeRight(std::optional<double> points) { setInset(safeRight_, points); }
    /// See `setSafeLeft`.
    void setSafeBottom(std::optional<double> points) { setInset(safeBottom_, points); }
    /// See `setSafeLeft`.
    void setKeyboardHeight(std::optional<double> points) { setInset(keyboardHeight_, points); }
    /// For QML, as the four that follow: set to `undefined`.
    void resetSafeLeft() { setSafeLeft(std::nullopt); }
    /// For QML.
    void resetSafeTop() { setSafeTop(std::nullopt); }
    /// For QML.
    void resetSafeRight() { setSafeRight(std::nullopt); }
    /// For QML.
    void resetSafeBottom() { setSafeBottom(std::nullopt); }
    /// For QML.
    void resetKeyboardHeight() { setKeyboardHeight(std::nullopt); }

    /// Of all that is inside. It outlives this, and everything that was made inside.
    Theme* theme();

    /// Another table.
    Q_SIGNAL void appearanceChanged();
    /// One of the four that follow the device.
    Q_SIGNAL void lookChanged();
    /// One of the five that pages keep clear of.
    Q_SIGNAL void insetsChanged();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override; ///< the insets follow

private:
    /// What the host has said, and what else the device says.
    Look look() const;
    void showLook();
    Insets insets() const;
    void setInset(std::optional<double>& inset, std::optional<double> points);
    void showInsets();

    QPointer<AppearanceTable> table_;
    Appearance appearance_;
    std::optional<bool> dark_;
    std::optional<double> textScale_;
    std::optional<bool> reducedMotion_;
    std::optional<bool> boldText_;
    std::optional<double> safeLeft_;
    std::optional<double> safeTop_;
    std::optional<double> safeRight_;
    std::optional<double> safeBottom_;
    std::optional<double> keyboardHeight_;
    DeviceInsets deviceInsets_{*this};
    QPointer<Theme> theme_;
};

} // namespace ombrivane::view
