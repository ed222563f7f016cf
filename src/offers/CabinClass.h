#pragma once

#include <string>

namespace ombrivane {

/// The service's code of a cabin class name: "M", "W", "C", "F"; empty for every other name, which means any
/// cabin.
std::string cabinCodeOfName(const std::string& name);

/// The name of a cabin class code; empty for every other code.
std::string cabinNameOfCode(const std::string& code);

} // namespace ombrivane
