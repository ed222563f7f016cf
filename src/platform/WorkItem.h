#pragma once

#include <functional>
#include <memory>

namespace ombrivane {

/// Delayed or repeated work of the main queue. Dropping the item or cancelling it is enough: its step does
/// not run any more, and what the step holds is let go.
class WorkItem {
public:
    WorkItem() = default;
    /// For a main queue: the step, which runs only while the item holds it.
    explicit WorkItem(std::shared_ptr<std::function<void()>> step) : step_(std::move(step)) {}

    /// Nothing happens when the step has run.
    void cancel() { step_.reset(); }
    /// Whether the item still holds its step: a step that ran once is held until the item goes.
    bool isPending() const { return step_ != nullptr; }

private:
    std::shared_ptr<std::function<void()>> step_;
};

} // namespace ombrivane
