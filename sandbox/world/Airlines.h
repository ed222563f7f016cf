// The airlines of the sandbox. All are invented.
#pragma once

#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

struct Airline {
    std::string_view code;
    std::string_view name;
    std::string_view hub; ///< airport code; flights abroad start or end there
    bool isDomestic;      ///< flies within Nepal only
    double fareLevel;     ///< 1 is the usual price
    unsigned colour;      ///< of its logo, 0xRRGGBB
    int mark;             ///< which drawing its logo has, see Logos.h
};

const std::vector<Airline>& airlines();

/// Null when the code is not known.
const Airline* airlineOf(std::string_view code);

} // namespace ombrivane::sandbox
