#pragma once

#include <string_view>

namespace ombrivane {

/// A stretch of text with its references resolved, or a tag. Valid until the next one is read.
struct HtmlToken {
    enum class Kind { text, startTag, endTag };

    Kind kind = Kind::text;
    std::string_view text;      ///< of a tag its name, in lower case
    bool isSelfClosing = false; ///< "<svg/>"
};

} // namespace ombrivane
