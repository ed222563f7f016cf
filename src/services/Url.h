#pragma once

#include <string_view>

namespace ombrivane {

/// Whether `text` is an address as it stands: a scheme, something behind it, and no character that a URL must
/// write otherwise, such as a blank or a letter beyond ASCII (RFC 3986, section 2).
bool isUrl(std::string_view text);

} // namespace ombrivane
