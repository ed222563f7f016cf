#pragma once

#include <optional>
#include <string_view>

namespace ombrivane {

/// The character that HTML calls `name`, letter case included, as in "eacute"; nothing for an unknown name.
std::optional<char32_t> htmlEntity(std::string_view name);

/// No name is longer.
inline constexpr std::size_t longestHtmlEntity = 8;

} // namespace ombrivane
