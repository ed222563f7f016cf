#pragma once

#include "platform/MainQueue.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace ombrivane {

/// The delayed and repeated work of a main queue in the order in which it falls due. It knows no clock: the
/// queue says what time it is. Main thread.
class TimerSchedule {
public:
    /// Time since the queue was made.
    using Time = std::chrono::milliseconds;

    /// Plans `step` for `due`, and every `interval` from then on where there is one, until the item is
    /// dropped.
    WorkItem add(Time due, std::optional<MainQueue::Duration> interval, MainQueue::Step step);

    /// When the next piece of work is due; nothing when none is pending.
    std::optional<Time> nextDue();

    /// How long a queue that has nothing else to do may wait at `now` before it looks again; nothing when
    /// none is pending. A second at most: while a device sleeps, a wait stands still, the time of the timers
    /// does not.
    std::optional<Time> waitAt(Time now);

    /// Runs the piece of work that has been due longest at `now`, if any. A repeated one is due again one
    /// interval after it was due, not after it ran.
    bool runOneDue(Time now);

private:
    struct Timer {
        std::weak_ptr<MainQueue::Step> step;
        std::optional<MainQueue::Duration> interval;
    };
    using Key = std::pair<Time, std::uint64_t>;

    void dropCancelled();

    std::map<Key, Timer> timers_;
    std::uint64_t sequence_ = 0;
};

} // namespace ombrivane
