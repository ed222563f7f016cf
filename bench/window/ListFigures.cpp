#include "Device.h"
#include "LongList.h"
#include "Scene.h"
#include "Stopwatch.h"
#include "WindowFigures.h"
#include "session/Fonts.h"

#include <fmt/core.h>

#include <malloc.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace ombrivane::bench {
namespace {

constexpr std::size_t manyOffers = 2'000;
constexpr std::size_t fewOffers = 50;
constexpr std::size_t markedOffers = 200;

bool isText(const QQuickItem& item) {
    return item.inherits("QQuickText") && !item.property("text").toString().isEmpty();
}
bool isOffers(const QQuickItem& item) { return item.objectName() == "offers"; }
/// A placeholder cannot be operated.
bool isOffer(const QQuickItem& item) { return item.objectName() == "offer" && item.isEnabled(); }

QQuickItem& offersIn(QQuickItem& page) {
    const auto lists = visibleItems(page, isOffers);
    if (lists.empty()) throw std::runtime_error("the page shows no list");
    return *lists.front();
}

/// A list of the toolkit with rows of the same height and the same texts as `row`.
QString bareList(QQuickItem& row) {
    QString texts;
    for (const QQuickItem* text : visibleItems(row, isText)) {
        texts += QStringLiteral("        Text { x: %1; y: %2; text: \"%3\" }\n")
                     .arg(text->mapToItem(&row, QPointF()).x())
                     .arg(text->mapToItem(&row, QPointF()).y())
                     .arg(text->property("text").toString());
    }
    return QStringLiteral("import QtQuick\n"
                          "ListView {\n"
                          "    model: 0\n"
                          "    delegate: Item {\n"
                          "        width: ListView.view.width\n"
                          "        height: %1\n%2"
                          "    }\n"
                          "}\n")
        .arg(row.height() + 12)
        .arg(texts);
}

void drawRows(Scene& scene, QQuickItem& page) {
    do
        scene.draw();
    while (visibleItems(page, isOffer).empty());
}

/// From the answer that reaches the waiting page, and from the model that reaches a bare list, to the first
/// rows.
void printFirstRows(Scene& scene, LongList& list) {
    constexpr std::size_t rounds = 31;
    list.fill();
    QQuickItem* page = &scene.open(list.page(), &list.adapter());
    drawRows(scene, *page);
    QQuickItem& row = *visibleItems(*page, isOffer).front();
    const std::size_t texts = visibleItems(row, isText).size();
    const QUrl bare = scene.keepPage("BareList", bareList(row));
    scene.close();
    const auto medians = interleavedMedians({{[&] {
                                                  list.fill();
                                                  drawRows(scene, *page);
                                              },
                                              [&] {
                                                  list.await();
                                                  list.renewAdapter();
                                                  page = &scene.open(list.page(), &list.adapter());
                                                  scene.draw();
                                              },
                                              [&] { scene.close(); }},
                                             {[&] {
                                                  page->setProperty("model", static_cast<int>(list.size()));
                                                  scene.draw();
                                              },
                                              [&] {
                                                  page = &scene.open(bare);
                                                  scene.draw();
                                              },
                                              [&] { scene.close(); }}},
                                            rounds);
    fmt::print("list.first_rows_ms {:.2f}\nlist.bare_first_rows_ms {:.2f}\nlist.first_rows_ratio "
               "{:.2f}\nlist.texts_in_a_row {}\n",
               medians[0] * 1e3,
               medians[1] * 1e3,
               medians[0] / medians[1],
               texts);
}

/// Rows that are alive: drawn, or made ahead beyond the window.
std::size_t rowsAlive(const QQuickItem& offers) {
    const auto* content = offers.property("contentItem").value<QQuickItem*>();
    const auto children = content->childItems();
    return static_cast<std::size_t>(
        std::count_if(children.begin(), children.end(), [](const QQuickItem* child) {
            const auto grandchildren = child->childItems();
            return std::any_of(grandchildren.begin(), grandchildren.end(), [](const QQuickItem* item) {
                return isOffer(*item);
            });
        }));
}

struct Scrolling {
    std::vector<double> seconds; ///< of each frame
    std::size_t mostAlive = 0;
};

/// A page that waited for its offers, from their first to their last as a finger flicks.
Scrolling scrollThrough(Scene& scene, LongList& list) {
    constexpr double pointsPerFrame = 120; // what a strong flick moves in a sixtieth of a second
    list.renewAdapter();
    QQuickItem& page = scene.open(list.page(), &list.adapter());
    list.await();
    scene.draw();
    list.fill();
    drawRows(scene, page);
    QQuickItem& offers = offersIn(page);
    Scene::settle(500);
    offers.setProperty("pinned", false); // as a finger does
    Scrolling scrolling;
    while (!offers.property("atYEnd").toBool()) {
        const double start = processorSeconds();
        offers.setProperty("contentY", offers.property("contentY").toDouble() + pointsPerFrame);
        scene.draw();
        scrolling.seconds.push_back(processorSeconds() - start);
        if (scrolling.seconds.size() % 10 == 0)
            scrolling.mostAlive = std::max(scrolling.mostAlive, rowsAlive(offers));
    }
    scene.close();
    return scrolling;
}

double worstOf(const std::vector<double>& frames) { return *std::max_element(frames.begin(), frames.end()); }

/// The slowest frame of each pass over its median one; of the passes the middle one.
void printScrolling(Scene& scene, LongList& list) {
    constexpr int passes = 5;
    std::vector<double> typical;
    std::vector<double> worst;
    std::vector<double> ratios;
    std::size_t mostAlive = 0;
    std::size_t frames = 0;
    for (int pass = 0; pass < passes; ++pass) {
        const Scrolling scrolling = scrollThrough(scene, list);
        typical.push_back(median(scrolling.seconds));
        worst.push_back(worstOf(scrolling.seconds));
        ratios.push_back(worst.back() / typical.back());
        mostAlive = std::max(mostAlive, scrolling.mostAlive);
        frames = scrolling.seconds.size();
    }
    fmt::print("list.items_alive {}\nlist.scroll_frames {}\nlist.scroll_median_ms {:.2f}\n"
               "list.scroll_worst_ms {:.2f}\nlist.scroll_worst_over_median {:.2f}\n",
               mostAlive,
               frames,
               median(typical) * 1e3,
               median(worst) * 1e3,
               median(ratios));
}

/// Names as a hostile service writes them: the slowest frame of a pass, the median of the passes.
void printMarkedNames(Scene& scene, LongList& list) {
    constexpr int passes = 3;
    std::vector<double> worst;
    for (int pass = 0; pass < passes; ++pass) {
        worst.push_back(worstOf(scrollThrough(scene, list).seconds));
    }
    fmt::print("list.marked_names_worst_ms {:.2f}\n", median(worst) * 1e3);
}

std::size_t heapInUse() {
    const auto state = mallinfo2();
    return state.uordblks + state.hblkhd;
}

/// What the page holds besides the records: its adapter, its items and what they draw.
double pageBytes(Scene& scene, LongList& list) {
    list.fill();
    const std::size_t before = heapInUse();
    list.renewAdapter();
    drawRows(scene, scene.open(list.page(), &list.adapter()));
    Scene::settle(200);
    const std::size_t with = heapInUse();
    scene.close();
    return static_cast<double>(with) - static_cast<double>(before);
}

void printMemory(Scene& scene, LongList& list, LongList& shortList) {
    constexpr int rounds = 5;
    std::vector<double> many;
    std::vector<double> few;
    for (int round = 0; round < rounds; ++round) {
        many.push_back(pageBytes(scene, list));
        few.push_back(pageBytes(scene, shortList));
    }
    fmt::print(
        "list.page_kb {:.0f}\nlist.memory_ratio {:.2f}\n", median(many) / 1024, median(many) / median(few));
}

} // namespace

void printListFigures() {
    Device device;
    registerFonts();
    Scene scene;
    LongList list(manyOffers, device.service().address());
    LongList shortList(fewOffers, device.service().address());
    printFirstRows(scene, list);
    printScrolling(scene, list);
    LongList marked(markedOffers, device.service().address(), 1'500);
    printMarkedNames(scene, marked);
    printMemory(scene, list, shortList);
}

} // namespace ombrivane::bench
