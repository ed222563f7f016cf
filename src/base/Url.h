#pragma once

#include <string>
#include <string_view>

namespace ombrivane {

/// Whether `text` is an address as it stands: a scheme, something behind it, and no character that a URL must
/// write otherwise, such as a blank or a letter beyond ASCII (RFC 3986, section 2).
bool isUrl(std::string_view text);

/// The host of `url`, a name or an address without brackets; empty when it has none.
std::string hostOf(std::string_view url);

} // namespace ombrivane
