// PNG pictures: written for logos, checked for travel documents.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

/// A picture of `size` by `size` points with four bytes (red, green, blue, opacity) for each, row by row.
std::string encodePng(unsigned size, const std::vector<std::uint8_t>& points);

/// The empty text when the bytes are a PNG picture that decodes to its last row, or else a sentence that says
/// why not.
std::string pngFault(std::string_view bytes);

} // namespace ombrivane::sandbox
