#include "appearance/Contrast.h"

#include <algorithm>
#include <cmath>

namespace ombrivane::view {
namespace {

/// What a screen tells apart of each part of a colour, and of its lightness.
constexpr double partSteps = 255;
constexpr int lightnessSteps = 510;

double linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminance(const Shade& shade) {
    return 0.2126 * linear(shade.red) + 0.7152 * linear(shade.green) + 0.0722 * linear(shade.blue);
}

double lightness(const Shade& shade) {
    return (std::min({shade.red, shade.green, shade.blue}) + std::max({shade.red, shade.green, shade.blue})) /
           2;
}

/// The parts move together towards black or white: hue and saturation stay, as far as a screen can show them.
Shade withLightness(const Shade& shade, double wanted) {
    const double now = lightness(shade);
    // How far the parts of a full colour may lie apart at a lightness.
    const auto room = [](double at) { return 1 - std::abs(2 * at - 1); };
    const double share = room(now) > 0 ? room(wanted) / room(now) : 0;
    const auto moved = [&](double part) {
        return std::clamp(std::round((wanted + (part - now) * share) * partSteps) / partSteps, 0.0, 1.0);
    };
    return {moved(shade.red), moved(shade.green), moved(shade.blue)};
}

} // namespace

double contrast(const Shade& one, const Shade& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

double leastContrast(const Shade& front, const std::vector<Shade>& grounds) {
    double least = 21;
    for (const auto& ground : grounds)
        least = std::min(least, contrast(front, ground));
    return least;
}

Shade nearestShade(const Shade& front, const std::vector<Shade>& grounds, double wanted) {
    Shade best = front;
    double bestContrast = leastContrast(front, grounds);
    const double start = lightness(front);
    for (int step = 1; step <= lightnessSteps && bestContrast < wanted; ++step) {
        for (const int direction : {-1, 1}) {
            const double wantedLightness = start + direction * static_cast<double>(step) / lightnessSteps;
            const Shade shade = withLightness(front, std::clamp(wantedLightness, 0.0, 1.0));
            const double reached = leastContrast(shade, grounds);
            if (reached <= bestContrast) continue;
            best = shade;
            bestContrast = reached;
        }
    }
    return best;
}

} // namespace ombrivane::view
