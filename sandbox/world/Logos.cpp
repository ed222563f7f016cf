#include "sandbox/world/Logos.h"

#include "sandbox/world/Png.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ombrivane::sandbox {

namespace {

constexpr unsigned size = 96;
constexpr unsigned samples = 4; ///< per point and direction, for smooth edges

/// Coordinates run from -1 to 1, y downwards.
bool isInTile(double x, double y) {
    constexpr double radius = 0.42;
    const double dx = std::max(std::abs(x) - (1 - radius), 0.0);
    const double dy = std::max(std::abs(y) - (1 - radius), 0.0);
    return dx * dx + dy * dy <= radius * radius;
}

bool isInMark(int mark, double x, double y) {
    const double radius = std::hypot(x, y);
    switch (mark) {
    case 0:
        return std::abs(y + 0.15 - std::abs(x) * 0.8) < 0.2 && std::abs(x) < 0.62;
    case 1:
        return radius < 0.58 && radius > 0.34;
    case 2:
        return std::abs(x) + std::abs(y) < 0.62 && std::abs(x) + std::abs(y) > 0.2;
    case 3:
        return y < 0.42 && (y > std::abs(x + 0.2) * 1.5 - 0.5 || y > std::abs(x - 0.35) * 1.5 - 0.15);
    case 4:
        return std::abs(x - y * 0.4) < 0.6 && std::abs(y) < 0.5 && std::fmod(y + 0.5, 0.36) < 0.2;
    default:
        return radius < 0.6 && std::hypot(x - 0.24, y + 0.14) > 0.46;
    }
}

std::uint8_t blended(unsigned colour, unsigned marked, unsigned covered) {
    return static_cast<std::uint8_t>((colour * (covered - marked) + 255 * marked) / covered);
}

} // namespace

std::string logoPng(const Airline& airline) {
    std::vector<std::uint8_t> points;
    points.reserve(std::size_t{size} * size * 4);
    const auto coordinate = [](unsigned point, unsigned sample) {
        return (point * samples + sample + 0.5) * 2 / (size * samples) - 1;
    };
    for (unsigned row = 0; row < size; ++row)
        for (unsigned column = 0; column < size; ++column) {
            unsigned covered = 0;
            unsigned marked = 0;
            for (unsigned sample = 0; sample < samples * samples; ++sample) {
                const double x = coordinate(column, sample % samples);
                const double y = coordinate(row, sample / samples);
                if (!isInTile(x, y)) continue;
                ++covered;
                if (isInMark(airline.mark, x, y)) ++marked;
            }
            for (unsigned shift : {16U, 8U, 0U})
                points.push_back(covered == 0 ? 0 : blended(airline.colour >> shift & 255U, marked, covered));
            points.push_back(static_cast<std::uint8_t>(covered * 255 / (samples * samples)));
        }
    return encodePng(size, points);
}

std::string logoPath(const Airline& airline) { return fmt::format("/logos/{}.png", airline.code); }

} // namespace ombrivane::sandbox
