#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ombrivane {

/// What stands for bytes that are no UTF-8.
inline constexpr char32_t replacementCharacter = 0xFFFD;

/// The code point at `index`, which is moved behind it. Each ill-formed sequence counts as one replacement
/// character. `index` must be within `text`.
char32_t nextCodePoint(std::string_view text, std::size_t& index);

/// Appends `codePoint`, which must be a valid one.
void appendCodePoint(std::string& text, char32_t codePoint);

} // namespace ombrivane
