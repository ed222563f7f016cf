#include "base/SharedInstance.h"

#include <vector>

namespace ombrivane {
namespace {

std::vector<std::function<void()>>& drops() {
    static std::vector<std::function<void()>> instance;
    return instance;
}

} // namespace

std::recursive_mutex& detail::sharedInstanceMutex() {
    static std::recursive_mutex instance;
    return instance;
}

void detail::onDropSharedInstances(std::function<void()> drop) { drops().push_back(std::move(drop)); }

void dropSharedInstances() {
    const std::lock_guard lock(detail::sharedInstanceMutex());
    while (!drops().empty()) {
        const auto drop = std::move(drops().back());
        drops().pop_back();
        drop();
    }
}

} // namespace ombrivane
