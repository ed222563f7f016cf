#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// A character that HTML names instead of writing it: "&nbsp;", "&#8211;", "&#x2013;".
struct HtmlReference {
    std::string text;       ///< the character
    std::size_t length = 0; ///< of the reference, in bytes

    /// The reference that `html` begins with, or nothing when its "&" stands for itself.
    static std::optional<HtmlReference> at(std::string_view html);
};

} // namespace ombrivane
