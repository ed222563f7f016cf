#include "base/SharedInstance.h"

#include <vector>

namespace ombrivane {
namespace {

// Neither is destroyed, as the instances themselves.

std::vector<std::function<void()>>& drops() {
    static auto& instance = *new std::vector<std::function<void()>>;
    return instance;
}

} // namespace

std::recursive_mutex& detail::sharedInstanceMutex() {
    static auto& instance = *new std::recursive_mutex;
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
