#pragma once

#include "base/Date.h"

namespace ombrivane {

/// What time it is.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The present moment, to the millisecond. Any thread.
    virtual Date now() = 0;
};

} // namespace ombrivane
