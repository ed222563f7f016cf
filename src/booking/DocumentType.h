#pragma once

#include <string>

namespace ombrivane {

inline constexpr const char* passportType = "passport";

/// The label of a document's wire code; empty for an unknown one.
std::string documentLabel(const std::string& wireCode);

/// "ADT", "CHD" or "INF" for "Adult", "Child" or "Infant"; empty for anything else.
std::string passengerTypeCode(const std::string& type);

} // namespace ombrivane
