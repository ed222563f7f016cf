#pragma once

#include <string>

namespace ombrivane {

/// The system that the component runs on, for instance {"iOS", 14, 2}.
struct SystemVersion {
    std::string name; ///< "iOS", "Android", "Linux"
    int major = 0;    ///< 14 of 14.2
    int minor = 0;    ///< 2 of 14.2

    /// Whether this is `system` in a version below `version`. Another system is never below.
    bool isBelow(const std::string& system, int version) const { return name == system && major < version; }
};

} // namespace ombrivane
