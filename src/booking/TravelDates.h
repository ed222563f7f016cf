#pragma once

#include <string>

namespace ombrivane {

/// The first and the last day of travel as the service tells them, "yyyy-MM-dd": of one way the same day
/// twice.
struct TravelDates {
    std::string first;
    std::string last;
};

} // namespace ombrivane
