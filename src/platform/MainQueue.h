#pragma once

#include "platform/WorkItem.h"

#include <chrono>
#include <functional>

namespace ombrivane {

/// The one queue on which everything but a client's completion runs.
class MainQueue {
public:
    /// One piece of work.
    using Step = std::function<void()>;
    /// As exact as a timer of the queue is.
    using Duration = std::chrono::milliseconds;

    MainQueue() = default;
    MainQueue(const MainQueue&) = delete;
    MainQueue& operator=(const MainQueue&) = delete;
    virtual ~MainQueue() = default;

    /// Runs `step` once, on the main thread, after what was queued before. Any thread. A step that is left by
    /// a fault ends there; the queue goes on.
    virtual void async(Step step) = 0;

    /// Runs `step` once when `delay` has passed, unless the item is dropped before. Main thread.
    [[nodiscard]] virtual WorkItem after(Duration delay, Step step) = 0;

    /// Runs `step` every `interval` until the item is dropped, and delivers every tick that it owes: after
    /// the queue slept through a minute, a timer of one second runs sixty times. Main thread.
    [[nodiscard]] virtual WorkItem every(Duration interval, Step step) = 0;
};

} // namespace ombrivane
