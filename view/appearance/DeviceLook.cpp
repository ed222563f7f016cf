#include "appearance/DeviceLook.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QScreen>
#include <QStyleHints>

#include <algorithm>
#include <utility>

namespace ombrivane::view {
namespace {

/// Of the component's body text: what letters are compared with.
constexpr double usualPixels = 15;
/// The pages are laid out for letters up to twice their usual size.
constexpr double largestScale = 2;

bool isDark() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const auto scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown) return scheme == Qt::ColorScheme::Dark;
#endif
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

double pixelsOf(const QFont& font) {
    if (font.pixelSize() > 0) return font.pixelSize();
    constexpr double pointsPerInch = 72;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 0 : font.pointSizeF() * screen->logicalDotsPerInchY() / pointsPerInch;
}

} // namespace

DeviceLook& DeviceLook::shared() {
    static QPointer<DeviceLook> instance;
    if (!instance) instance = new DeviceLook(qApp); // owned by the application
    return *instance;
}

/// The signals are named by text since Qt 6 wants each change to be taken from an event instead, and only the
/// host may stand at the application's events.
DeviceLook::DeviceLook(QObject* parent) : QObject(parent) {
    connect(qApp, SIGNAL(paletteChanged(QPalette)), this, SLOT(read()));
    connect(qApp, SIGNAL(fontChanged(QFont)), this, SLOT(read()));
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &DeviceLook::read);
#endif
    read();
}

void DeviceLook::read() {
    const QFont font = QGuiApplication::font();
    const Look now{.dark = isDark(),
                   .textScale = std::clamp(pixelsOf(font) / usualPixels, 1.0, largestScale),
                   .reducedMotion = false,
                   .boldText = font.weight() >= QFont::DemiBold};
    if (std::exchange(look_, now) != now) emit changed();
}

} // namespace ombrivane::view
