#include "Figures.h"

#include <algorithm>

namespace ombrivane::demo {

Figures::Figures(QQuickWindow& window, const QElapsedTimer& started) : started_(started) {
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] {
        ++frames_;
        if (firstFrame_ < 0) firstFrame_ = started_.elapsed();
    });
    listening_ = HostEvents::shared().listen([this](const Event& event) {
        const Json told = event.json();
        if (!told.contains("milliseconds") || told.contains("error")) return;
        const std::lock_guard lock(mutex_);
        Json& longest = longest_[told.at("event").get<std::string>()];
        longest = std::max(longest.is_null() ? 0 : longest.get<int>(), told.at("milliseconds").get<int>());
    });
}

Json Figures::json() const {
    const std::lock_guard lock(mutex_);
    return {
        {"firstFrame", firstFrame_}, {"run", started_.elapsed()}, {"frames", frames_}, {"longest", longest_}};
}

} // namespace ombrivane::demo
