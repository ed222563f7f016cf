#pragma once

#include "base/Date.h"
#include "platform/SystemVersion.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// The command line of the journey. An argument of the component that is left out is nil.
struct Options {
    std::optional<std::string> testHost;
    std::optional<std::string> productionHost;
    std::string ca;
    std::string clientId;
    std::string clientSecret;
    std::optional<std::string> userType;
    std::optional<double> walletBalance;
    std::optional<std::string> phone;
    std::optional<std::string> environment;
    std::optional<Date> now;
    std::optional<std::string> timeZone;
    std::optional<std::string> locale;
    std::string fonts;
    std::string record;
    SystemVersion system{"Linux", 0, 0};
    std::optional<std::uint32_t> reachability;
    bool diagnostics = false;
    bool help = false;
    std::string script = "-";

    /// @throws std::invalid_argument that says what is wrong
    static Options parse(const std::vector<std::string>& arguments);
    static std::string usage();
};

} // namespace ombrivane::journey
