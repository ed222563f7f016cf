#pragma once

#include "base/Api.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// A point in time, to the millisecond. Calendar days come from it only through a calendar and a time zone.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// The point as "2026-11-21T09:30:00Z".
OMBRIVANE_API std::string isoText(Date date);

/// Reads "2026-11-21", "2026-11-21T09:30:00", with or without "Z" or an offset such as "+05:45"; without one
/// the time is UTC. Nothing for any other form.
OMBRIVANE_API std::optional<Date> parseIso(std::string_view text);

} // namespace ombrivane
