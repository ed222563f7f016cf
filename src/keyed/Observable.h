#pragma once

#include "base/Api.h"

#include <functional>
#include <memory>
#include <vector>

namespace ombrivane {

/// What is told of a change; it may read, assign, observe and drop subscriptions.
using Observer = std::function<void()>;

/// Keeps one observer registered; dropping it ends the observation, also while notifying.
class Subscription {
public:
    Subscription() = default;
    /// For an observable: the slot that it tells while it lives.
    explicit Subscription(std::shared_ptr<void> slot) : slot_(std::move(slot)) {}

    /// Ends the observation.
    void cancel() { slot_.reset(); }
    /// Whether it still observes.
    explicit operator bool() const { return slot_ != nullptr; }

private:
    std::shared_ptr<void> slot_;
};

/// An observer for whoever computes from what changed or shows it: `told` is called once, when the turn of
/// the change ends, unless the observation has ended by then.
OMBRIVANE_API Observer settled(Observer told);

/// Something that can change and tells. Main thread only.
///
/// Observers are told of each assignment as it happens, one change at a time: an assignment made while
/// observers are being told is stored at once and told after the current one. An observer that is added while
/// notifying hears the next change; one that is removed hears nothing more.
class OMBRIVANE_API Observable : public std::enable_shared_from_this<Observable> {
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;

    /// `observer` is told of each later change while the subscription lives.
    Subscription observe(Observer observer);
    /// Whether anybody would be told.
    bool isObserved() const;

    /// Tells every observer that the value was assigned, changed or not.
    void notify();

    /// Called by whoever reads the value: registers it with the computation that is being tracked, if any.
    void noteRead();

    /// Runs `computation` and observes everything that it reads; `changed` is called after each later change.
    static std::vector<Subscription> track(const std::function<void()>& computation, const Observer& changed);

protected:
    ~Observable() = default;

private:
    struct Slot {
        Observer observer;
    };
    void deliver();

    std::vector<std::weak_ptr<Slot>> slots_;
};

} // namespace ombrivane
