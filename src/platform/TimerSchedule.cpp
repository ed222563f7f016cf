#include "platform/TimerSchedule.h"

#include "base/Fault.h"

#include <algorithm>

namespace ombrivane {

WorkItem TimerSchedule::add(Time due, std::optional<MainQueue::Duration> interval, MainQueue::Step step) {
    auto shared = std::make_shared<MainQueue::Step>(std::move(step));
    timers_.emplace(Key{due, sequence_++}, Timer{shared, interval});
    return WorkItem(std::move(shared));
}

void TimerSchedule::dropCancelled() {
    while (!timers_.empty() && timers_.begin()->second.step.expired())
        timers_.erase(timers_.begin());
}

std::optional<TimerSchedule::Time> TimerSchedule::nextDue() {
    dropCancelled();
    if (timers_.empty()) return std::nullopt;
    return timers_.begin()->first.first;
}

std::optional<TimerSchedule::Time> TimerSchedule::waitAt(Time now) {
    const auto due = nextDue();
    if (!due) return std::nullopt;
    return std::clamp(*due - now, Time(0), Time(std::chrono::seconds(1)));
}

bool TimerSchedule::runOneDue(Time now) {
    const auto due = nextDue();
    if (!due || *due > now) return false;
    const Timer timer = timers_.begin()->second;
    timers_.erase(timers_.begin());
    if (timer.interval) timers_.emplace(Key{*due + *timer.interval, sequence_++}, timer);
    if (const auto step = timer.step.lock()) guarded(*step);
    return true;
}

} // namespace ombrivane
