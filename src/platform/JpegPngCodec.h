#pragma once

#include "base/Api.h"
#include "platform/ImageCodec.h"

namespace ombrivane {

/// Pictures by libjpeg-turbo and libpng. Colour profiles and metadata are left aside, but for the orientation
/// of a JPEG. Neither library prints. Holds no state.
class OMBRIVANE_API JpegPngCodec final : public ImageCodec {
public:
    std::optional<Image> decode(const std::string& bytes, const PictureLimits& limits) override;
    std::optional<std::string> jpeg(const Image& image, double quality) override;
    std::optional<std::string> png(const Image& image) override;
    std::optional<std::string> pngOfJpeg(const std::string& jpeg, const PictureLimits& limits) override;
};

} // namespace ombrivane
