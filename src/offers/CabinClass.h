#pragma once

#include <string>

namespace ombrivane {

/// The name of the choice that leaves the cabin open.
inline constexpr const char* anyCabin = "All Class";

/// The service's code of a cabin class name: "M", "W", "C", "F"; empty for every other name, which means any
/// cabin.
std::string cabinCodeOfName(const std::string& name);

/// The name of a cabin class code; empty for every other code.
std::string cabinNameOfCode(const std::string& code);

/// What the customer reads for a cabin's name, `anyCabin` included; the name itself where it is unknown.
std::string cabinLabel(const std::string& name);

} // namespace ombrivane
