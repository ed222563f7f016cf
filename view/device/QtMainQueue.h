#pragma once

#include "platform/ElapsedTime.h"
#include "platform/MainQueue.h"
#include "platform/TimerSchedule.h"

#include <QObject>
#include <QTimer>

namespace ombrivane::view {

/// The main queue on the application's own event loop.
class QtMainQueue final : public MainQueue {
public:
    /// @param time what the timers go by
    explicit QtMainQueue(TimeSource time = elapsedTime);

    void async(Step step) override;
    WorkItem after(Duration delay, Step step) override;
    WorkItem every(Duration interval, Step step) override;

    /// Moves the timers on beyond real time and runs what falls due, in its order. For scripts.
    void advance(Duration duration);

private:
    TimerSchedule::Time now() const { return time_() - start_ + skipped_; }
    void arm();
    void runDue();

    QObject context_;
    QTimer timer_;
    TimeSource time_;
    Duration start_ = time_();
    TimerSchedule schedule_;
    Duration skipped_{0};
};

} // namespace ombrivane::view
