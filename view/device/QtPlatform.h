#pragma once

#include "platform/Platform.h"

#include <string>

namespace ombrivane::view {

/// The ports of a program with a window: Qt's event loop, fonts and locale, libcurl's network. Make it after
/// the application object.
/// @param caFile certificates to trust in place of the platform's; empty for the platform's
/// @param reachabilityAddress see `RouteReachability`; empty for what Qt and the routes know of the way to
/// the
///        service
Platform qtPlatform(const std::string& caFile = "", const std::string& reachabilityAddress = "");

} // namespace ombrivane::view
