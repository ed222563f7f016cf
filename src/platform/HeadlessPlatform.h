#pragma once

#include "base/Api.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"

#include <memory>
#include <string>

namespace ombrivane {

/// The ports of a program without a window: its main thread turns `loop`, the network is libcurl's. Nobody
/// picks a photo, and what the component would open or share goes nowhere; a program that wants more replaces
/// the port before it installs the platform.
/// @param caFile certificates to trust in place of the platform's; empty for the platform's
/// @param reachabilityAddress see `RouteReachability`; empty for the way to the service
OMBRIVANE_API Platform headlessPlatform(std::shared_ptr<RunLoop> loop, const std::string& caFile = "",
                                        const std::string& reachabilityAddress = "");

} // namespace ombrivane
