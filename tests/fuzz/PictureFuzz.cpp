// Pictures from an address or of the customer's choice.
#include "Require.h"
#include "platform/JpegPngCodec.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrivane;
    JpegPngCodec codec;
    // Small enough to be quick; the same checks as at the real limits.
    const PictureLimits limits{1 << 16, 200, 20'000};
    const auto image = codec.decode(std::string(data, data + size), limits);
    if (!image) return 0;
    require(size <= limits.bytes && limits.allow(image->width, image->height), "limits hold");
    const auto points = static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
    require(image->points && image->points->size() == 4 * points, "every point is there");
    const auto png = codec.png(*image);
    require(png.has_value(), "a picture can be written");
    const auto again = codec.decode(*png, {1 << 20, 200, 20'000});
    require(again && *again->points == *image->points, "a PNG keeps every point");
    return 0;
}
