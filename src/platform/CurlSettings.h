#pragma once

#include <string>

namespace ombrivane {

/// What a host may set of the network.
struct CurlSettings {
    std::string caFile{}; ///< PEM; empty for the platform's trust store
    std::string proxy{};  ///< "http://host:port"; empty for none, whatever the environment says
};

} // namespace ombrivane
