#pragma once

#include "events/Event.h"
#include "events/HostEvents.h"

#include <chrono>
#include <string>

namespace ombrivane {

/// What one screen tells the host's listeners: all of it belongs to the opening in which the screen was made,
/// also when an answer comes after another one has begun. Main thread.
class Reporter {
public:
    Reporter() : opening_(HostEvents::shared().opening()) {}

    /// Something is asked for: from here the time of its answer counts.
    void asks();
    /// Something is asked for, and that is an event.
    void sent(EventKind kind);
    /// The answer is there, or will not come: with the time since it was asked for.
    void answered(Event event) const;
    /// Anything else happened.
    void happened(Event event) const;

private:
    std::string opening_;
    std::chrono::milliseconds sent_{};
};

} // namespace ombrivane
