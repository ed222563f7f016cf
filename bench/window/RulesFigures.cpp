#include "Journey.h"
#include "Scene.h"
#include "WindowFigures.h"
#include "adapters/PageTable.h"
#include "booking/RulesAndRegulationView.h"

#include <QDir>
#include <QElapsedTimer>

#include <fmt/core.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ombrivane::bench {
namespace {

struct Text {
    const char* name;
    std::string html;
};

std::string repeated(const std::string& piece, std::size_t bytes) {
    std::string html;
    while (html.size() < bytes)
        html += piece;
    return html;
}

/// Fare rules of the greatest length, each made to be slow in its own way.
std::vector<Text> texts() {
    constexpr std::size_t longest = 1 << 20;
    return {{"one-word", std::string(longest, 'x')},
            {"sentences", repeated("No refund after departure. ", longest)},
            {"paragraphs", repeated("<p>No refund.</p>", longest)},
            {"nested", repeated("<div>", 100'000) + "deep"},
            {"table", repeated("<tr><td>Fee</td><td>NPR 1,500</td></tr>", longest)},
            {"misnested", repeated("<b><i><u></b>x", longest)}};
}

} // namespace

void printRulesFigures() {
    QDir::setCurrent(OMBRIVANE_SOURCE); // the script names others from there
    Device device;
    Scene scene;
    double longest = 0;
    const char* name = "";
    const auto show = [&](const std::string& /*name*/, const std::shared_ptr<Screen>& screen) {
        auto& rules = dynamic_cast<RulesAndRegulationView&>(*screen);
        const auto adapter = view::makeAdapter(screen);
        QQmlEngine::setObjectOwnership(adapter.get(), QQmlEngine::CppOwnership);
        scene.open(view::pageOf(*screen), adapter.get());
        scene.draw();
        for (const Text& text : texts()) {
            QElapsedTimer time;
            time.start();
            rules.htmlText = text.html;
            scene.draw();
            const double took = static_cast<double>(time.nsecsElapsed()) / 1e6;
            if (took > longest) name = text.name;
            longest = std::max(longest, took);
        }
        scene.close();
    };
    Journey(device).play("tests/view/gallery/rules.script", show);
    fmt::print("rules.longest_ms {:.1f}\nrules.longest_name {}\n", longest, name);
}

} // namespace ombrivane::bench
