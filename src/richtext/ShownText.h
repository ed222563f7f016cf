#pragma once

#include "platform/Limits.h"

#include <string>
#include <string_view>

namespace ombrivane {

/// What may become visible of a text from outside, on one line: control characters and those that turn the
/// direction of writing are left out, a tab and a line's end become a blank, ill-formed bytes the replacement
/// character; a word beyond 500 characters gets places to break, of the marks on one letter eight stay, and a
/// text beyond `maximumBytes` ends in an ellipsis within them. Only for showing: what is sent or handed over
/// stays as it is.
/// @param maximumBytes of the result, at least 3.
std::string shownText(std::string_view text, std::size_t maximumBytes = limits::shownBytes);

} // namespace ombrivane
