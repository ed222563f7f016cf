#pragma once

#include "platform/ReachabilityMeasure.h"
#include "support/Api.h"

#include <string>

namespace ombrivane {

/// Asks the system's routing table for the way to one IPv4 address.
class OMBRIVANE_API RouteReachability final : public ReachabilityMeasure {
public:
    /// @param address dotted; the default stands for "the internet" and is never sent to
    ///        (a documentation address of RFC 5737). A service on this machine is asked for as "127.0.0.1".
    explicit RouteReachability(std::string address = "192.0.2.1") : address_(std::move(address)) {}

    std::optional<std::uint32_t> flags() override;

private:
    std::string address_;
};

} // namespace ombrivane
