#pragma once

#include <functional>
#include <memory>
#include <mutex>

namespace ombrivane {

/// Forgets every shared instance, the last made first. For tests and for a host that ends the component's use
/// for good: nothing may hold a reference into one of them.
void dropSharedInstances();

namespace detail {
void onDropSharedInstances(std::function<void()> drop);
std::recursive_mutex& sharedInstanceMutex();
} // namespace detail

/// One object for the life of the process, made on first use. Any thread.
template <class T> class SharedInstance {
public:
    static T& get() {
        const std::lock_guard lock(detail::sharedInstanceMutex());
        auto& instance = slot();
        if (!instance) {
            instance = std::make_shared<T>();
            detail::onDropSharedInstances([] { slot().reset(); });
        }
        return *instance;
    }

    /// Whether it has been made.
    static bool isMade() {
        const std::lock_guard lock(detail::sharedInstanceMutex());
        return slot() != nullptr;
    }

private:
    /// Never destroyed: threads of the network read it until the process has gone.
    static std::shared_ptr<T>& slot() {
        static auto& instance = *new std::shared_ptr<T>;
        return instance;
    }
};

} // namespace ombrivane
