#include "fakes/ManualMainQueue.h"

#include "base/Fault.h"

namespace ombrivane::fakes {

void ManualMainQueue::async(Step step) {
    const std::lock_guard lock(mutex_);
    steps_.push_back(std::move(step));
}

bool ManualMainQueue::runOne() {
    Step step;
    {
        const std::lock_guard lock(mutex_);
        if (!steps_.empty()) {
            step = std::move(steps_.front());
            steps_.pop_front();
        }
    }
    if (!step) return timers_.runOneDue(now_);
    guarded(step);
    return true;
}

void ManualMainQueue::drain() {
    while (runOne()) {
    }
}

void ManualMainQueue::advance(Duration duration) {
    drain();
    const auto target = now_ + duration;
    for (auto due = timers_.nextDue(); due && *due <= target; due = timers_.nextDue()) {
        now_ = std::max(now_, *due);
        drain();
    }
    now_ = target;
}

} // namespace ombrivane::fakes
