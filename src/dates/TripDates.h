#pragma once

#include "dates/Day.h"

namespace ombrivane {

/// The return that goes with a departure until the customer chooses another: three days later.
inline Day defaultReturn(Day departure) {
    constexpr int days = 3;
    return departure.plusDays(days);
}

} // namespace ombrivane
