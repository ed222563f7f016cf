#pragma once

namespace ombrivane {

/// Registers every font of the component's bundle, once per process. Where the bundle cannot be listed the
/// next call tries again; a bundle that does not exist is a fault. Main thread.
void registerFonts();

} // namespace ombrivane
