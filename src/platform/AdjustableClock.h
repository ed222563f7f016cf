#pragma once

#include "platform/Clock.h"

namespace ombrivane {

/// The system's clock, which a developer may start at another time and move on.
class AdjustableClock final : public Clock {
public:
    /// The system's time, moved by what a developer asked for.
    Date now() override { return system() + shift_; }

    /// From here on `now` is the time of this call. Not while another thread reads the clock.
    void startAt(Date now) { shift_ = now - system(); }
    /// Moves the clock on, beyond the time that passes.
    void advance(std::chrono::milliseconds duration) { shift_ += duration; }

private:
    static Date system() {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }

    std::chrono::milliseconds shift_{0};
};

} // namespace ombrivane
