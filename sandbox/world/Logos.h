// The airlines' logos, drawn by the sandbox.
#pragma once

#include "sandbox/world/Airlines.h"

#include <string>

namespace ombrivane::sandbox {

/// Bytes of a PNG of 96 by 96 points: a white mark (0 chevron, 1 ring, 2 diamond, 3 peaks, 4 bars, 5
/// crescent) on a rounded tile of the airline's colour.
std::string logoPng(const Airline& airline);

/// Where that picture is under the service's address.
std::string logoPath(const Airline& airline);

} // namespace ombrivane::sandbox
