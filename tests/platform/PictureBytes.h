#pragma once

#include "platform/Image.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ombrivane::fakes {

/// A picture of one colour.
Image plainImage(int width, int height, std::vector<std::uint8_t> point);

/// One chunk of a PNG with its length and checksum.
std::string pngChunk(const std::string& type, const std::string& data);
std::string pngHeader(std::uint32_t width, std::uint32_t height, int depth, int colourType,
                      int interlace = 0);

/// A PNG made by hand: `rows` are the raw rows, each with its filter byte in front; `before` are further
/// chunks.
std::string pngOf(const std::string& header, const std::string& rows, const std::string& before = "");

/// The APP1 marker of a JPEG that says how the camera was held.
std::string exifMarker(int orientation, bool littleEndian);
/// `jpeg` with `marker` in front of all others.
std::string withMarker(const std::string& jpeg, const std::string& marker);

/// A JPEG of one printing colour (cyan, magenta, yellow, black; each inverted, as Adobe's programs write
/// them).
std::string cmykJpeg(const std::vector<std::uint8_t>& point);

} // namespace ombrivane::fakes
