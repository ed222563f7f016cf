#pragma once

#include "DemoOptions.h"
#include "sandbox/Sandbox.h"

#include <memory>

namespace ombrivane::demo {

/// The demo's own booking service; nullptr where the options name another one. They name this one from here
/// on.
/// @throws std::invalid_argument for a fault or a scenario that there is not
std::unique_ptr<sandbox::Sandbox> startService(DemoOptions& options);

} // namespace ombrivane::demo
