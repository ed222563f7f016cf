#pragma once

#include "base/Api.h"
#include "platform/ElapsedTime.h"
#include "platform/MainQueue.h"
#include "platform/TimerSchedule.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace ombrivane {

/// The main queue of a program without a window: its thread turns the loop.
class OMBRIVANE_API RunLoop final : public MainQueue {
public:
    /// @param time what the timers go by
    explicit RunLoop(TimeSource time = elapsedTime) : time_(time) {}

    void async(Step step) override;
    WorkItem after(Duration delay, Step step) override;
    WorkItem every(Duration interval, Step step) override;

    /// Runs what is queued and due until `done` holds or `limit` of real time has passed.
    /// @return whether `done` held. Main thread.
    bool runUntil(const std::function<bool()>& done, Duration limit);

    /// Moves the timers on by `duration` beyond real time and runs what falls due, in its order.
    void advance(Duration duration);

private:
    TimerSchedule::Time now() const;
    bool runOne();
    void drain();

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<Step> steps_;
    TimerSchedule timers_;
    TimeSource time_;
    Duration start_ = time_();
    Duration skipped_{0};
};

} // namespace ombrivane
