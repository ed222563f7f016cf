#pragma once

#include "base/Api.h"

#include <chrono>

namespace ombrivane {

/// Tells how long something has lasted: only differences of what it returns mean anything.
using TimeSource = std::chrono::milliseconds (*)();

/// The time that has gone by, that of the device's sleep included: what a customer was promised does not last
/// longer because the screen was dark. Any thread.
OMBRIVANE_API std::chrono::milliseconds elapsedTime();

} // namespace ombrivane
