#pragma once

#include <string_view>

namespace ombrivane {

/// Whether `url` begins as an address that is reached over TLS does, in letters of either case. What comes
/// from a service is fetched, opened and shared over nothing else.
bool isHttps(std::string_view url);

} // namespace ombrivane
