#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>
#include <vector>

namespace ombrivane::bench {

/// A window of the size of a phone that shows one page at a time, the component's or a bare one, in the way
/// the stage does: by its address, with its screen.
class Scene {
public:
    Scene();

    /// Keeps a page of the toolkit's own items; its address.
    QUrl keepPage(const QString& name, const QString& source);
    /// Shows a page. @throws std::runtime_error when it does not load
    QQuickItem& open(const QUrl& page, QObject* screen = nullptr);
    void close();
    /// Turns the event loop until the next frame is drawn.
    void draw();
    /// Turns the event loop for a time: what was sent for arrives.
    static void settle(int milliseconds);

    QQmlEngine& engine() { return engine_; }

private:
    QTemporaryDir folder_;
    QQmlEngine engine_;
    std::unique_ptr<QObject> root_;
    QQuickWindow* window_ = nullptr;
};

/// The items below `item` that `wanted` holds of, `item` itself among them; hidden ones are left out.
std::vector<QQuickItem*> visibleItems(QQuickItem& item, bool (*wanted)(const QQuickItem&));

} // namespace ombrivane::bench
