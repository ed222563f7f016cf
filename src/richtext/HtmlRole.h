#pragma once

#include <string_view>

namespace ombrivane {

/// What an element does to the text that it holds, as far as reading it matters.
enum class HtmlRole {
    none, ///< part of the text around it
    block,
    skipped,
    underlined,
    preformatted,
    list,
    item,
    table,
    rowGroup,
    row,
    cell
};

/// The role of the element with `name`, in lower case; `none` for an unknown one.
HtmlRole htmlRole(std::string_view name);

} // namespace ombrivane
