#pragma once

#include <optional>
#include <string>

namespace ombrivane {

/// The kinds of passengers that the service knows. Records and slots name them in English.
enum class PassengerType { adult, child, infant };

/// The type called "Adult", "Child" or "Infant"; nothing for anything else.
std::optional<PassengerType> passengerTypeOf(const std::string& name);

/// "ADT", "CHD" or "INF" for a type's name; empty for anything else.
std::string passengerTypeCode(const std::string& name);

/// The greatest age, in years, on the last day of travel; that of an adult for any other name.
int oldestAge(const std::string& name);

/// What the customer reads for a type's name; the name itself where it is none of the three.
std::string passengerTypeLabel(const std::string& name);

} // namespace ombrivane
