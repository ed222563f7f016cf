#pragma once

#include "base/Json.h"

namespace ombrivane::journey {

/// What this process holds: `memory` in KB that is its own alone, `threads`, and `files` (sockets and pipes
/// among them). Zeros where the system does not tell by way of /proc.
Json resourcesOfThisProcess();

} // namespace ombrivane::journey
