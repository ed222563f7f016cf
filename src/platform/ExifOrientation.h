#pragma once

#include <cstddef>
#include <string_view>

namespace ombrivane {

/// How a camera says that it was held: one of the eight ways in which the stored points make an upright
/// picture.
class ExifOrientation {
public:
    /// Where stored points stand in the upright picture, counted in points from its first.
    struct Placement {
        int width;
        int height;
        std::ptrdiff_t first;
        std::ptrdiff_t perColumn;
        std::ptrdiff_t perRow;
    };

    /// Reads the payload of a JPEG's APP1 marker. Anything malformed is upright.
    static ExifOrientation of(std::string_view payload);

    /// The tag's value, from 1 (upright) to 8.
    int value() const { return value_; }

    /// For stored points of `width` by `height`.
    Placement place(int width, int height) const;

private:
    int value_ = 1;
};

} // namespace ombrivane
