#include "device/QtMainQueue.h"

#include "base/Fault.h"

#include <algorithm>

namespace ombrivane::view {

QtMainQueue::QtMainQueue(TimeSource time) : time_(time) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &context_, [this] { runDue(); });
}

void QtMainQueue::async(Step step) {
    QMetaObject::invokeMethod(
        &context_, [step = std::move(step)] { guarded(step); }, Qt::QueuedConnection);
}

WorkItem QtMainQueue::after(Duration delay, Step step) {
    auto item = schedule_.add(now() + delay, std::nullopt, std::move(step));
    arm();
    return item;
}

WorkItem QtMainQueue::every(Duration interval, Step step) {
    auto item = schedule_.add(now() + interval, interval, std::move(step));
    arm();
    return item;
}

void QtMainQueue::arm() {
    const auto wait = schedule_.waitAt(now());
    if (!wait) return timer_.stop();
    timer_.start(*wait);
}

void QtMainQueue::runDue() {
    while (schedule_.runOneDue(now())) {
    }
    arm();
}

void QtMainQueue::advance(Duration duration) {
    const auto target = now() + duration;
    for (auto due = schedule_.nextDue(); due && *due <= target; due = schedule_.nextDue()) {
        skipped_ += std::max(*due - now(), Duration(0));
        schedule_.runOneDue(*due);
    }
    skipped_ += std::max(target - now(), Duration(0));
    arm();
}

} // namespace ombrivane::view
