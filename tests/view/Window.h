#pragma once

#include "items/OmbrivaneSession.h"
#include "sandbox/Sandbox.h"

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ombrivane::view {

/// The booking service of all tests of a process, whose clock stands still at `startOfTests`.
sandbox::Sandbox& service();
std::chrono::sys_seconds startOfTests();

/// A window with the component in it. Every warning of the toolkit while it lives is kept.
class Window {
public:
    explicit Window(int width = 390, int height = 844);
    /// A wallet of the test's own: a window with an `OmbrivaneView` in it, whose signals are its own
    /// business.
    explicit Window(const char* wallet, int width = 390, int height = 844);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window();

    OmbrivaneSession& session() { return *session_; }
    /// Whether the page with the component lives.
    bool hasSession() const { return !session_.isNull(); }
    QQuickWindow& window() { return *window_; }

    void open();
    /// Turns the event loop until `done` holds or ten seconds have passed; tells whether it held.
    static bool waitFor(const std::function<bool()>& done);
    bool waitForScreen(const std::string& name);
    /// The visible item with this object name, nullptr where there is none.
    QQuickItem* item(const QString& name);
    void click(const QString& name);
    std::vector<QQuickItem*> visibleItems();
    /// Whether the search, where there is one, has its page.
    bool isMade();
    int width() const { return window_->width(); }
    void setLook(bool dark, double textScale);
    /// Turns the event loop until pictures have arrived and nothing moves any more.
    void settle();
    /// What the toolkit complained about since it was last asked.
    std::vector<std::string> takeWarnings() { return std::exchange(warnings_, {}); }

    int callbacks = 0;
    int closings = 0;

private:
    QQmlApplicationEngine engine_; // a wallet's, which makes pages a piece at a time
    std::unique_ptr<QObject> root_;
    QQuickWindow* window_ = nullptr;
    QPointer<OmbrivaneSession> session_;
    std::vector<std::string> warnings_;
};

} // namespace ombrivane::view
