#pragma once

#include "base/Api.h"

#include <string>

namespace ombrivane {

/// Where the booking service stands: scheme and host without a trailing slash. Configured when the component
/// is built; a developer may name others before the first request of the process.
struct OMBRIVANE_API ServiceHosts {
    std::string production; ///< for every environment but "test"
    std::string test;       ///< for the environment "test"

    /// The one that serves `environment`.
    const std::string& of(const std::string& environment) const {
        return environment == "test" ? test : production;
    }

    /// The hosts that the endpoints will be built from.
    static ServiceHosts current();
    /// Whether nobody has named a host, neither by `use` nor when the component was built: what is asked then
    /// is a service on this device.
    static bool areOfNobody();
    /// Has no effect on endpoints that were already built.
    static void use(ServiceHosts hosts);
};

} // namespace ombrivane
