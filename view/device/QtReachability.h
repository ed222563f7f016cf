#pragma once

#include "platform/RouteReachability.h"

namespace ombrivane::view {

/// The network is there when the routes or what Qt knows of it say so: refusing a request that would have
/// arrived is worse than sending one that does not.
class QtReachability final : public ReachabilityMeasure {
public:
    /// On the main thread, after the application object is made.
    QtReachability();

    std::optional<std::uint32_t> flags(const std::string& host) override;

private:
    RouteReachability route_;
};

} // namespace ombrivane::view
