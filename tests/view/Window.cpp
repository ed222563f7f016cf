#include "Window.h"

#include "keyed/Navigator.h"
#include "pages/PagePlayer.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlIncubationController>
#include <QTest>

namespace ombrivane::view {
namespace {

constexpr const char* source = R"(
import QtQuick
import Ombrivane
Window {
    visible: true
    OmbrivaneView {
        objectName: "component"
        anchors.fill: parent
        clientId: "wallet"
        clientSecret: "wallet-secret"
        reducedMotion: true
    }
})";

std::vector<std::string>* collected = nullptr;

void collect(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (collected != nullptr && type != QtDebugMsg && type != QtInfoMsg)
        collected->push_back(text.toStdString());
}

void addVisible(QQuickItem* item, std::vector<QQuickItem*>& items) {
    if (!item->isVisible()) return;
    items.push_back(item);
    for (QQuickItem* child : item->childItems())
        addVisible(child, items);
}

} // namespace

Window::Window(int width, int height) : Window(source, width, height) {
    session_->setCallback([this](auto, auto) { ++callbacks; });
    QObject::connect(session_, &OmbrivaneSession::closed, window_, [this] { ++closings; });
}

Window::Window(const char* wallet, int width, int height) {
    collected = &warnings_;
    qInstallMessageHandler(collect);
    QQmlComponent component(&engine_);
    component.setData(wallet, QUrl("qrc:/test/Window.qml"));
    root_.reset(component.create());
    if (!root_) throw std::runtime_error(component.errorString().toStdString());
    window_ = qobject_cast<QQuickWindow*>(root_.get());
    window_->resize(width, height);
    session_ = window_->findChild<OmbrivaneSession*>();
}

Window::~Window() {
    if (session_) session_->drop();
    root_.reset();
    waitFor([] { return true; });
    qInstallMessageHandler(nullptr);
    collected = nullptr;
}

void Window::setLook(bool dark, double textScale) {
    QObject* view = window_->findChild<QObject*>("component");
    view->setProperty("dark", dark);
    view->setProperty("textScale", textScale);
}

void Window::settle() {
    EXPECT_TRUE(waitFor([this] { return isMade(); })) << "the search has no page";
    constexpr int enough = 90; // milliseconds; the slowest is a logo from the service
    QTest::qWait(enough);
    const QQmlIncubationController* making = engine_.incubationController();
    EXPECT_TRUE(waitFor([making] { return making == nullptr || making->incubatingObjectCount() == 0; }))
        << "a row is never made";
    // On a busy machine the frame that lays everything out may still be due.
    bool drawn = false;
    const auto watch =
        QObject::connect(window_, &QQuickWindow::frameSwapped, window_, [&drawn] { drawn = true; });
    window_->update();
    EXPECT_TRUE(waitFor([&drawn] { return drawn; })) << "no frame is drawn";
    QObject::disconnect(watch);
    // A row that was made ahead since then is laid out by another one, after which nothing comes.
    window_->grabWindow();
}

void Window::open() { session_->open(); }

bool Window::waitFor(const std::function<bool()>& done) {
    return kit::PagePlayer::runUntil(done, std::chrono::seconds(10));
}

bool Window::waitForScreen(const std::string& name) {
    return waitFor([&] {
        const Navigator* navigator = session_ ? session_->navigator() : nullptr;
        return navigator != nullptr && navigator->find(name) != nullptr && isMade();
    });
}

bool Window::isMade() {
    const Navigator* navigator = session_ ? session_->navigator() : nullptr;
    return navigator == nullptr || !navigator->find("MainView") || item("starting") == nullptr;
}

std::vector<QQuickItem*> Window::visibleItems() {
    std::vector<QQuickItem*> items;
    addVisible(window_->contentItem(), items);
    return items;
}

QQuickItem* Window::item(const QString& name) {
    QQuickItem* found = nullptr;
    for (QQuickItem* candidate : visibleItems()) {
        if (candidate->objectName() != name) continue;
        const QPointF centre =
            candidate->mapToScene(QPointF(candidate->width() / 2, candidate->height() / 2));
        // The topmost one counts; a row of a list may be made ahead, below the window.
        if (QRectF(QPointF(), window_->size()).contains(centre)) found = candidate;
    }
    return found;
}

void Window::click(const QString& name) {
    QQuickItem* target = nullptr;
    const auto laidOut = [&] {
        target = item(name);
        return target != nullptr && target->width() > 0 && target->height() > 0;
    };
    ASSERT_TRUE(waitFor(laidOut)) << name.toStdString();
    QTest::qWait(30); // the frame in which it is drawn where it stands
    ASSERT_TRUE(waitFor(laidOut)) << name.toStdString();
    const QPointF centre = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
    QTest::mouseClick(window_, Qt::LeftButton, {}, centre.toPoint());
}

} // namespace ombrivane::view
