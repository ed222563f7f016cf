#include "appearance/DeviceInsets.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QQuickWindow>

#include <utility>

namespace ombrivane::view {

DeviceInsets::DeviceInsets(QQuickItem& item) : item_(item) {
    const QInputMethod* keyboard = QGuiApplication::inputMethod();
    connect(keyboard, &QInputMethod::keyboardRectangleChanged, this, &DeviceInsets::read);
    connect(keyboard, &QInputMethod::visibleChanged, this, &DeviceInsets::read);
    connect(&item, &QQuickItem::windowChanged, this, &DeviceInsets::watch);
    watch(item.window());
}

void DeviceInsets::watch(QQuickWindow* window) {
    if (window_) window_->disconnect(this);
    window_ = window;
    if (window != nullptr) {
        connect(window, &QWindow::xChanged, this, &DeviceInsets::read);
        connect(window, &QWindow::yChanged, this, &DeviceInsets::read);
        connect(window, &QWindow::widthChanged, this, &DeviceInsets::read);
        connect(window, &QWindow::heightChanged, this, &DeviceInsets::read);
        connect(
            window, &QQuickWindow::afterAnimating, this, &DeviceInsets::read); // what holds the view may move
        connect(window, &QWindow::screenChanged, this, &DeviceInsets::watchScreen);
    }
    watchScreen(window != nullptr ? window->screen() : nullptr);
}

void DeviceInsets::watchScreen(QScreen* screen) {
    if (screen_) screen_->disconnect(this);
    screen_ = screen;
    if (screen != nullptr) {
        connect(screen, &QScreen::geometryChanged, this, &DeviceInsets::read);
        connect(screen, &QScreen::availableGeometryChanged, this, &DeviceInsets::read);
    }
    read();
}

void DeviceInsets::read() {
    Insets now;
    if (window_ && screen_) {
        const QRectF inWindow = item_.mapRectToScene(QRectF(QPointF(), item_.size()));
        now = screenInsets(inWindow.translated(window_->position()),
                           window_->geometry(),
                           screen_->geometry(),
                           screen_->availableGeometry());
        const QInputMethod* keyboard = QGuiApplication::inputMethod();
        if (keyboard->isVisible() && QGuiApplication::focusWindow() == window_)
            now.keyboard = keyboardInset(inWindow, keyboard->keyboardRectangle());
    }
    if (std::exchange(insets_, now) != now) emit changed();
}

} // namespace ombrivane::view
