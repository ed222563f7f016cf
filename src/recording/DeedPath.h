#pragma once

#include "keyed/Navigator.h"

#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// The path by which a journey finds the action `key` of `screen`: "OneWayView.search",
/// "FlightListView.rows[3].tap". Nothing where the stack of `navigator` does not show the screen. Main
/// thread.
std::optional<std::string> pathOf(const Navigator& navigator, const Screen& screen, std::string_view key);

} // namespace ombrivane
