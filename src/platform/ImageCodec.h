#pragma once

#include "base/Api.h"
#include "platform/Image.h"

#include <optional>
#include <string>

namespace ombrivane {

/// How large a picture may be, judged by its header before anything is decoded.
struct PictureLimits {
    std::size_t bytes; ///< before decoding
    long long side;    ///< either side, in points
    long long points;  ///< over all

    /// Whether a picture of this size may be decoded.
    bool allow(long long width, long long height) const {
        return width > 0 && height > 0 && width <= side && height <= side && width <= points / height;
    }
};

/// Reads and writes PNG and JPEG, told apart by their first bytes; everything else is no picture. Any thread.
class ImageCodec {
public:
    ImageCodec() = default;
    ImageCodec(const ImageCodec&) = delete;
    ImageCodec& operator=(const ImageCodec&) = delete;
    virtual ~ImageCodec() = default;

    /// The picture with its orientation applied, or nothing when the bytes are none or beyond the limits.
    virtual std::optional<Image> decode(const std::string& bytes, const PictureLimits& limits) = 0;

    /// JPEG at `quality` from 0 to 1, without metadata; nothing when it cannot be made.
    virtual std::optional<std::string> jpeg(const Image& image, double quality) = 0;

    /// Lossless PNG, without metadata; nothing when it cannot be made.
    virtual std::optional<std::string> png(const Image& image) = 0;

    /// The PNG of what `jpeg` shows, made row by row: the picture is never decoded as a whole. `jpeg` is one
    /// of this codec's own; nothing when it is none or beyond the limits.
    virtual std::optional<std::string> pngOfJpeg(const std::string& jpeg, const PictureLimits& limits) = 0;
};

/// Of a picture from an address.
OMBRIVANE_API PictureLimits logoLimits();
/// Of a picture that the customer chose.
OMBRIVANE_API PictureLimits documentLimits();

} // namespace ombrivane
