#pragma once

#include "base/Api.h"
#include "platform/ReachabilityMeasure.h"

#include <string>
#include <utility>

namespace ombrivane {

/// Asks the system's routing table. A host that is given as an address is asked for itself, and a name for
/// this machine as its loopback address; for any other name a route to the internet is wanted, of either
/// family.
class OMBRIVANE_API RouteReachability final : public ReachabilityMeasure {
public:
    /// @param address of IPv4 or IPv6, asked for in place of every host: for a service in a network that has
    ///        no route to the internet. Empty for none.
    explicit RouteReachability(std::string address = "") : address_(std::move(address)) {}

    std::optional<std::uint32_t> flags(const std::string& host) override;

private:
    std::string address_;
};

} // namespace ombrivane
