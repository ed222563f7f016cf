#pragma once

#include <vector>

namespace ombrivane::view {

/// A colour of a screen, each part from 0 to 1, as sRGB has them.
struct Shade {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// How well one is told from the other: from 1 (not at all) to 21 (black and white), in either order, as the
/// Web Content Accessibility Guidelines compute it.
double contrast(const Shade& one, const Shade& other);

/// The least contrast of `front` with any of `grounds`.
double leastContrast(const Shade& front, const std::vector<Shade>& grounds);

/// Of the shades of the same hue and saturation the one nearest to `front` in lightness whose contrast with
/// each of `grounds` is at least `wanted`; `front` itself where it holds already. Where grounds lie so far
/// apart that none holds, the one that comes nearest to it.
Shade nearestShade(const Shade& front, const std::vector<Shade>& grounds, double wanted);

} // namespace ombrivane::view
