// Cold start: the time from the call that shows the component to its first frame, over that of a bare window
// with one text, each in a fresh process. Prints one line "name value" for each figure.
#include "device/QtPlatform.h"
#include "items/OmbrivaneSession.h"
#include "sandbox/Sandbox.h"
#include "services/ServiceHosts.h"
#include "support/SharedInstance.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <fmt/core.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

Q_IMPORT_QML_PLUGIN(OmbrivanePlugin)

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

double median(std::vector<double> values) {
    std::nth_element(
        values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

/// One start in a process of its own, as `ombrivane-window-bench KIND`.
int startOnce(const QString& kind) {
    ombrivane::sandbox::Sandbox service(ombrivane::sandbox::Options{});
    service.start();
    ombrivane::ServiceHosts::use({.production = service.address(), .test = service.address()});
    ombrivane::Platform::install(ombrivane::view::qtPlatform(service.caFile(), "127.0.0.1"));
    {
        QQmlEngine engine;
        engine.addImportPath("qrc:/com.framework.Ombrivane/qml");
        fmt::print("{:.3f}\n", firstFrame(engine, kind == "bare" ? bareWindow : componentWindow));
    }
    ombrivane::Platform::endNetwork();
    QCoreApplication::processEvents();
    ombrivane::dropSharedInstances();
    service.stop();
    return 0;
}

double startInProcess(const QString& kind) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kind});
    if (!process.waitForFinished() || process.exitCode() != 0) throw std::runtime_error("a start failed");
    return process.readAllStandardOutput().trimmed().toDouble();
}

/// In turn, so that what else the machine does meets both alike.
void measure() {
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

} // namespace

int main(int count, char** values) {
    const QGuiApplication application(count, values);
    if (count > 1) return startOnce(QString::fromLocal8Bit(values[1]));
    measure();
}
