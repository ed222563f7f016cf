#include "Scene.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QQmlComponent>

#include <stdexcept>

namespace ombrivane::bench {
namespace {

constexpr const char* sceneSource = R"(
import QtQuick
Window {
    property alias page: loader.item
    function open(page, screen) { if (screen === null) loader.setSource(page); else loader.setSource(page, {"screen": screen}) }
    function close() { loader.source = "" }
    visible: true
    width: 390
    height: 844
    Loader { id: loader; anchors.fill: parent; focus: true }
})";

} // namespace

Scene::Scene() {
    QQmlComponent component(&engine_);
    component.setData(sceneSource, QUrl("qrc:/bench/Scene.qml"));
    root_.reset(component.create());
    window_ = qobject_cast<QQuickWindow*>(root_.get());
    if (window_ == nullptr) throw std::runtime_error(component.errorString().toStdString());
    draw();
}

QUrl Scene::keepPage(const QString& name, const QString& text) {
    QFile file(folder_.filePath(name + ".qml"));
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("a page cannot be kept");
    file.write(text.toUtf8());
    return QUrl::fromLocalFile(file.fileName());
}

QQuickItem& Scene::open(const QUrl& page, QObject* screen) {
    QMetaObject::invokeMethod(window_,
                              "open",
                              Q_ARG(QVariant, QVariant::fromValue(page)),
                              Q_ARG(QVariant, QVariant::fromValue(screen)));
    auto* item = window_->property("page").value<QQuickItem*>();
    if (item == nullptr) throw std::runtime_error("not shown: " + page.toString().toStdString());
    return *item;
}

void Scene::close() {
    QMetaObject::invokeMethod(window_, "close");
    draw();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Scene::draw() {
    bool drawn = false;
    const auto connection =
        QObject::connect(window_, &QQuickWindow::frameSwapped, window_, [&drawn] { drawn = true; });
    window_->update();
    while (!drawn)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
}

void Scene::settle(int milliseconds) {
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, milliseconds);
}

std::vector<QQuickItem*> visibleItems(QQuickItem& item, bool (*wanted)(const QQuickItem&)) {
    std::vector<QQuickItem*> found;
    if (!item.isVisible()) return found;
    if (wanted(item)) found.push_back(&item);
    for (QQuickItem* child : item.childItems()) {
        const auto below = visibleItems(*child, wanted);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

} // namespace ombrivane::bench
