#pragma once

namespace ombrivane {

/// In the place of an airline in a filter: none is left out. What the customer reads is a text of its own.
inline constexpr const char* allAirlines = "All Airlines";

} // namespace ombrivane
