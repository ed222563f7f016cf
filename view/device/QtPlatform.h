#pragma once

#include "platform/Platform.h"

#include <string>

namespace ombrivane::view {

/// The ports of a program with a window: Qt's event loop, fonts and locale, libcurl's network. Make it after
/// the application object.
/// @param caFile certificates to trust in place of the platform's; empty for the platform's
/// @param reachabilityAddress the address whose route decides whether there is a network
Platform qtPlatform(const std::string& caFile = "", const std::string& reachabilityAddress = "192.0.2.1");

} // namespace ombrivane::view
