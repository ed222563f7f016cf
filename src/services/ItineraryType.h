#pragma once

/// The itinerary types, compared and sent exactly.
namespace ombrivane::itineraryType {

/// A single journey.
inline constexpr const char* oneway = "oneway";
/// A journey and its return; what every round search sends.
inline constexpr const char* round = "round";
/// Two separately chosen domestic one-way offers that travel as one booking. Never sent to the search.
inline constexpr const char* roundSpecial = "round_special";

} // namespace ombrivane::itineraryType
