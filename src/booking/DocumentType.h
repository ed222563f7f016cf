#pragma once

#include <string>

namespace ombrivane {

inline constexpr const char* passportType = "passport";

/// The label of a document's wire code; empty for an unknown one.
std::string documentLabel(const std::string& wireCode);

} // namespace ombrivane
