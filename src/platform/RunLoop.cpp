#include "platform/RunLoop.h"

#include "base/Fault.h"

#include <algorithm>

namespace ombrivane {

using std::chrono::steady_clock;

void RunLoop::async(Step step) {
    {
        const std::lock_guard lock(mutex_);
        steps_.push_back(std::move(step));
    }
    arrived_.notify_one();
}

WorkItem RunLoop::after(Duration delay, Step step) {
    return timers_.add(now() + delay, std::nullopt, std::move(step));
}

WorkItem RunLoop::every(Duration interval, Step step) {
    return timers_.add(now() + interval, interval, std::move(step));
}

TimerSchedule::Time RunLoop::now() const { return time_() - start_ + skipped_; }

bool RunLoop::runOne() {
    Step step;
    {
        const std::lock_guard lock(mutex_);
        if (!steps_.empty()) {
            step = std::move(steps_.front());
            steps_.pop_front();
        }
    }
    if (!step) return timers_.runOneDue(now());
    guarded(step);
    return true;
}

bool RunLoop::runUntil(const std::function<bool()>& done, Duration limit) {
    const auto end = steady_clock::now() + limit;
    while (!done()) {
        if (runOne()) continue;
        if (steady_clock::now() >= end) return false;
        auto wake = end;
        if (const auto wait = timers_.waitAt(now())) wake = std::min(wake, steady_clock::now() + *wait);
        std::unique_lock lock(mutex_);
        arrived_.wait_until(lock, wake, [this] { return !steps_.empty(); });
    }
    return true;
}

void RunLoop::drain() {
    while (runOne()) {
    }
}

void RunLoop::advance(Duration duration) {
    const auto target = now() + duration;
    // What is queued runs before time moves on, so that the delays which it asks for count from then.
    drain();
    for (auto due = timers_.nextDue(); due && *due <= target; due = timers_.nextDue()) {
        skipped_ += std::max(*due - now(), Duration(0));
        drain();
    }
    skipped_ += std::max(target - now(), Duration(0));
    drain();
}

} // namespace ombrivane
