#include "Device.h"
#include "Stopwatch.h"
#include "WindowFigures.h"
#include "items/OmbrivaneSession.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <fmt/core.h>

#include <stdexcept>
#include <vector>

namespace ombrivane::bench {
namespace {

constexpr const char* bareWindow = R"(
import QtQuick
Window { visible: true; width: 390; height: 844; Text { anchors.centerIn: parent; text: "Flights" } }
)";

constexpr const char* componentWindow = R"(
import QtQuick
import Ombrivane
Window {
    visible: true; width: 390; height: 844
    OmbrivaneView {
        anchors.fill: parent
        clientId: "wallet"
        clientSecret: "wallet-secret"
        Component.onCompleted: open()
    }
}
)";

/// Milliseconds until the window that `source` describes has shown a frame.
double firstFrame(QQmlEngine& engine, const char* source) {
    QElapsedTimer time;
    time.start();
    QQmlComponent component(&engine);
    component.setData(source, QUrl("qrc:/bench/Window.qml"));
    const std::unique_ptr<QObject> root(component.create());
    auto* window = qobject_cast<QQuickWindow*>(root.get());
    if (window == nullptr) throw std::runtime_error(component.errorString().toStdString());
    bool drawn = false;
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [&drawn] { drawn = true; });
    while (!drawn)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

double startInProcess(const QString& kind) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kind});
    if (!process.waitForFinished() || process.exitCode() != 0) throw std::runtime_error("a start failed");
    return process.readAllStandardOutput().trimmed().toDouble();
}

} // namespace

void startOnce(const QString& kind) {
    const Device device;
    QQmlEngine engine;
    engine.addImportPath("qrc:/com.framework.Ombrivane/qml");
    fmt::print("{:.3f}\n", firstFrame(engine, kind == "bare" ? bareWindow : componentWindow));
}

/// In turn, so that what else the machine does meets both alike.
void printStartFigures() {
    constexpr int rounds = 21;
    std::vector<double> bare;
    std::vector<double> component;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(startInProcess("bare"));
        component.push_back(startInProcess("component"));
    }
    fmt::print("start.bare_ms {:.2f}\nstart.component_ms {:.2f}\nstart.ratio {:.2f}\n",
               median(bare),
               median(component),
               median(component) / median(bare));
}

} // namespace ombrivane::bench
