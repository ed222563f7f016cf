#pragma once

#include "platform/Clock.h"

#include <atomic>
#include <chrono>

namespace ombrivane {

/// The system's clock, which a developer may start at another time and move on.
class AdjustableClock final : public Clock {
public:
    /// The system's time, moved by what a developer asked for.
    Date now() override { return system() + std::chrono::milliseconds(shift_); }

    /// From here on `now` is the time of this call. Any thread.
    void startAt(Date now) { shift_ = (now - system()).count(); }
    /// Moves the clock on, beyond the time that passes. Any thread.
    void advance(std::chrono::milliseconds duration) { shift_ += duration.count(); }

private:
    static Date system() {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }

    std::atomic<std::chrono::milliseconds::rep> shift_{0};
};

} // namespace ombrivane
