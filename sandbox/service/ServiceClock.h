// The time as the service sees it: real, started elsewhere, or standing still.
#pragma once

#include "sandbox/world/Dates.h"

#include <atomic>
#include <optional>

namespace ombrivane::sandbox {

/// Safe from every thread.
class ServiceClock {
public:
    ServiceClock(std::optional<Instant> start, bool frozen);

    [[nodiscard]] Instant now() const;

    [[nodiscard]] bool standsStill() const { return frozen_; }

    /// Turns the clock on by hand, also while it stands still.
    void advance(std::chrono::seconds time);

private:
    bool frozen_;
    Instant start_;
    std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
    std::atomic<std::chrono::seconds::rep> advanced_ = 0;
};

} // namespace ombrivane::sandbox
