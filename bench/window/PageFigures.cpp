#include "Journey.h"
#include "Scene.h"
#include "Stopwatch.h"
#include "WindowFigures.h"
#include "adapters/PageTable.h"

#include <QDir>
#include <QElapsedTimer>

#include <fmt/core.h>

#include <algorithm>
#include <vector>

namespace ombrivane::bench {
namespace {

/// In milliseconds from the call that opens a page to its first frame, its adapter included.
struct Opening {
    double elapsed = 0; ///< with the frame's turn
    double processor = 0;
};

Opening opening(Scene& scene, const QUrl& page, const std::shared_ptr<Screen>& screen) {
    QElapsedTimer time;
    time.start();
    const double begin = processorSeconds();
    std::unique_ptr<view::ScreenAdapter> adapter;
    if (screen) {
        adapter = view::makeAdapter(screen);
        QQmlEngine::setObjectOwnership(adapter.get(), QQmlEngine::CppOwnership);
    }
    QObject* const opened = &scene.open(page, adapter.get());
    // The adapter goes after its page, whenever the toolkit lets go of that.
    if (adapter) QObject::connect(opened, &QObject::destroyed, adapter.release(), &QObject::deleteLater);
    scene.draw();
    const Opening took{static_cast<double>(time.nsecsElapsed()) / 1e6, (processorSeconds() - begin) * 1e3};
    scene.close();
    return took;
}

struct Page {
    std::string name;
    double milliseconds = 0;
    double emptyMilliseconds = 0;
    double processor = 0;

    double ratio() const { return milliseconds / emptyMilliseconds; }
};

/// The page and an empty one in turn; the first round, which also compiles, is not counted.
Page measure(Scene& scene, const std::string& name, const std::shared_ptr<Screen>& screen,
             const QUrl& empty) {
    constexpr int rounds = 15;
    std::vector<double> full;
    std::vector<double> bare;
    std::vector<double> processor;
    for (int round = 0; round <= rounds; ++round) {
        const Opening one = opening(scene, view::pageOf(*screen), screen);
        const Opening other = opening(scene, empty, nullptr);
        if (round == 0) continue;
        full.push_back(one.elapsed);
        processor.push_back(one.processor);
        bare.push_back(other.elapsed);
    }
    return {name, median(full), median(bare), median(processor)};
}

} // namespace

void printPageFigures() {
    QDir::setCurrent(OMBRIVANE_SOURCE); // the scripts name each other from there
    Device device;
    Scene scene;
    const QUrl empty = scene.keepPage("Empty", "import QtQuick\nItem { property QtObject screen }");
    std::vector<Page> pages;
    for (const char* script : {"abroad", "home", "trouble", "payment"}) {
        Journey(device).play(std::string("tests/view/gallery/") + script + ".script",
                             [&](const std::string& name, const std::shared_ptr<Screen>& screen) {
                                 pages.push_back(measure(scene, name, screen, empty));
                             });
    }
    std::sort(pages.begin(), pages.end(), [](const Page& one, const Page& other) {
        return one.ratio() > other.ratio();
    });
    for (const Page& page : pages)
        fmt::print("page.processor_ms.{} {:.2f}\n", page.name, page.processor);
    fmt::print("page.worst_ratio {:.2f}\npage.worst_name {}\npage.worst_ms {:.2f}\npage.empty_ms {:.2f}\n"
               "page.median_ratio {:.2f}\n",
               pages.front().ratio(),
               pages.front().name,
               pages.front().milliseconds,
               pages.front().emptyMilliseconds,
               pages[pages.size() / 2].ratio());
}

} // namespace ombrivane::bench
