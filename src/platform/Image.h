#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace ombrivane {

/// A decoded picture: rows from the top, four bytes a point (red, green, blue, opacity; not premultiplied).
/// Copies share the points.
struct Image {
    int width = 0;  ///< in points
    int height = 0; ///< in points
    /// 4 * width * height bytes.
    std::shared_ptr<const std::vector<std::uint8_t>> points;

    /// The same picture, not merely an equal one.
    bool operator==(const Image& other) const = default;
};

} // namespace ombrivane
