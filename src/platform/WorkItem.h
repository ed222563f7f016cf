#pragma once

#include <functional>
#include <memory>

namespace ombrivane {

/// Delayed or repeated work of the main queue. Dropping the item or cancelling it is enough: its step does
/// not run any more, and what the step holds is let go.
class WorkItem {
public:
    WorkItem() = default;
    explicit WorkItem(std::shared_ptr<std::function<void()>> step) : step_(std::move(step)) {}

    void cancel() { step_.reset(); }
    bool isPending() const { return step_ != nullptr; }

private:
    std::shared_ptr<std::function<void()>> step_;
};

} // namespace ombrivane
