#pragma once

#include "platform/Clock.h"

namespace ombrivane {

/// The system's clock, which a developer may start at another time and move on.
class AdjustableClock final : public Clock {
public:
    Date now() override { return system() + shift_; }

    void startAt(Date now) { shift_ = now - system(); }
    void advance(std::chrono::milliseconds duration) { shift_ += duration; }

private:
    static Date system() {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }

    std::chrono::milliseconds shift_{0};
};

} // namespace ombrivane
