#include "Device.h"
#include "Scene.h"
#include "Stopwatch.h"
#include "WindowFigures.h"
#include "items/OmbrivaneSession.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <fmt/core.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace ombrivane::bench {
namespace {

constexpr const char* bareWindow = R"(
import QtQuick
Window { visible: true; width: 390; height: 844; Text { anchors.centerIn: parent; text: "Flight Search" } }
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

/// In milliseconds from the call that shows a window.
struct Start {
    double firstFrame = 0;
    double sight = 0;       ///< until the frame in which its text can be read
    double processor = 0;   ///< what this thread worked until then
    double longestTurn = 0; ///< of the event loop, without waiting
};

bool isTitle(const QQuickItem& item) { return item.property("text").toString() == "Flight Search"; }

bool canBeRead(const QQuickItem& item) {
    return item.opacity() > 0.99 && (item.parentItem() == nullptr || canBeRead(*item.parentItem()));
}

/// By the engine of a wallet, which makes pages a piece at a time.
Start start(QQmlApplicationEngine& engine, const char* source) {
    Start figures;
    QElapsedTimer time;
    time.start();
    const double begin = processorSeconds();
    double looking = 0; // for the text, which is no part of the work
    engine.loadData(source, QUrl("qrc:/bench/Window.qml"));
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (window == nullptr) throw std::runtime_error("no window");
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] {
        const double now = processorSeconds();
        const double elapsed = static_cast<double>(time.nsecsElapsed()) / 1e6 - looking * 1e3;
        if (figures.firstFrame == 0) figures.firstFrame = elapsed;
        const auto titles = visibleItems(*window->contentItem(), isTitle);
        if (figures.sight == 0 && !titles.empty() && canBeRead(*titles.front())) {
            figures.sight = elapsed;
            figures.processor = (now - begin - looking) * 1e3;
        }
        looking += processorSeconds() - now;
    });
    while (figures.sight == 0) {
        const double before = processorSeconds() - looking;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        figures.longestTurn = std::max(figures.longestTurn, (processorSeconds() - looking - before) * 1e3);
    }
    return figures;
}

Start startInProcess(const QString& kind) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kind});
    if (!process.waitForFinished() || process.exitCode() != 0) throw std::runtime_error("a start failed");
    const auto figures = process.readAllStandardOutput().simplified().split(' ');
    return {figures.value(0).toDouble(),
            figures.value(1).toDouble(),
            figures.value(2).toDouble(),
            figures.value(3).toDouble()};
}

double medianOf(const std::vector<Start>& starts, double Start::*figure) {
    std::vector<double> values;
    values.reserve(starts.size());
    for (const Start& each : starts)
        values.push_back(each.*figure);
    return median(std::move(values));
}

} // namespace

void startOnce(const QString& kind) {
    Device device;
    if (kind == "awaited") device.service().setFaults({"/get-token latency=300"});
    QQmlApplicationEngine engine;
    const Start figures = start(engine, kind == "bare" ? bareWindow : componentWindow);
    fmt::print("{:.3f} {:.3f} {:.3f} {:.3f}\n",
               figures.firstFrame,
               figures.sight,
               figures.processor,
               figures.longestTurn);
}

/// In turn, so that what else the machine does meets both alike.
void printStartFigures() {
    constexpr int rounds = 21;
    std::vector<Start> bare;
    std::vector<Start> component;
    std::vector<Start> awaited;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(startInProcess("bare"));
        component.push_back(startInProcess("component"));
        awaited.push_back(startInProcess("awaited"));
    }
    const std::pair<const char*, double Start::*> rows[] = {
        {"start", &Start::firstFrame}, {"sight", &Start::sight}, {"sight.processor", &Start::processor}};
    for (const auto& [name, figure] : rows) {
        const double one = medianOf(bare, figure);
        const double other = medianOf(component, figure);
        fmt::print("{0}.bare_ms {1:.2f}\n{0}.component_ms {2:.2f}\n{0}.ratio {3:.2f}\n",
                   name,
                   one,
                   other,
                   other / one);
    }
    fmt::print("sight.longest_turn_ms {:.2f}\nsight.longest_turn_awaited_ms {:.2f}\n",
               medianOf(component, &Start::longestTurn),
               medianOf(awaited, &Start::longestTurn));
}

} // namespace ombrivane::bench
