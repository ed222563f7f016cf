#pragma once

#include "platform/MainQueue.h"
#include "platform/TimerSchedule.h"

#include <algorithm>
#include <deque>
#include <mutex>

namespace ombrivane::fakes {

/// A main queue that stands still until the test turns it: ten minutes pass in microseconds, in a known
/// order.
class ManualMainQueue final : public MainQueue {
public:
    void async(Step step) override;
    WorkItem after(Duration delay, Step step) override {
        return timers_.add(now_ + delay, std::nullopt, std::move(step));
    }
    WorkItem every(Duration interval, Step step) override {
        return timers_.add(now_ + interval, interval, std::move(step));
    }

    /// Runs one queued step or one timer that is due. False when there is none.
    bool runOne();
    /// Runs until nothing is queued or due.
    void drain();
    /// Moves the clock on, running what falls due at its time, with what that queues.
    void advance(Duration duration);

    bool hasTimers() { return timers_.nextDue().has_value(); }
    TimerSchedule::Time now() const { return now_; }

private:
    std::mutex mutex_;
    std::deque<Step> steps_;
    TimerSchedule timers_;
    TimerSchedule::Time now_{0};
};

} // namespace ombrivane::fakes
