#include "ports/PortContract.h"

namespace ombrivane::kit {
namespace {

/// Left red, right blue, with a transparent corner.
Image sample() {
    std::vector<std::uint8_t> points;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 24; ++x) {
            const std::uint8_t opacity = x == 23 && y == 15 ? 0 : 255;
            const bool left = x < 12;
            for (const int value : {left ? 255 : 0, 0, left ? 0 : 255, int(opacity)})
                points.push_back(static_cast<std::uint8_t>(value));
        }
    }
    return {24, 16, std::make_shared<const std::vector<std::uint8_t>>(std::move(points))};
}

/// Whether the picture has the size of the sample, and its colours but for what compression does.
bool isLike(const std::optional<Image>& image) {
    if (!image || image->width != 24 || image->height != 16 || !image->points ||
        image->points->size() != 1536U)
        return false;
    const auto& points = *image->points;
    return points[0] > 200 && points[2] < 60 && points[22 * 4] < 60 && points[22 * 4 + 2] > 200;
}

} // namespace

Findings checkImageCodec(const std::shared_ptr<ImageCodec>& images) {
    if (!images) return {"There is no image codec."};
    Findings findings;
    const auto expect = [&findings](bool holds, const char* sentence) {
        if (!holds) findings.emplace_back(sentence);
    };
    constexpr PictureLimits wide{.bytes = 1'000'000, .side = 100, .points = 10'000};
    constexpr PictureLimits narrow{.bytes = 1'000'000, .side = 20, .points = 10'000};
    constexpr PictureLimits few{.bytes = 1'000'000, .side = 100, .points = 100};
    const Image picture = sample();

    const auto png = images->png(picture);
    expect(png.has_value(), "png: makes none of a small picture");
    if (png) {
        const auto read = images->decode(*png, wide);
        expect(isLike(read), "decode: does not read the PNG that png wrote");
        expect(!read || !read->points || *read->points == *picture.points,
               "png: loses something of the picture");
        expect(!images->decode(*png, narrow) && !images->decode(*png, few), "decode: passes the limits by");
        expect(!images->decode(png->substr(0, png->size() / 2), wide),
               "decode: takes half of a PNG for a picture");
    }
    const auto jpeg = images->jpeg(picture, 0.9);
    expect(jpeg.has_value(), "jpeg: makes none of a small picture");
    if (jpeg) {
        expect(isLike(images->decode(*jpeg, wide)), "decode: does not read the JPEG that jpeg wrote");
        const auto shown = images->pngOfJpeg(*jpeg, wide);
        expect(shown && isLike(images->decode(*shown, wide)), "pngOfJpeg: does not show what the JPEG shows");
        expect(!images->pngOfJpeg(*jpeg, narrow), "pngOfJpeg: passes the limits by");
    }
    for (const char* none : {"", "no picture", "GIF89a\1\1"})
        expect(!images->decode(none, wide), "decode: takes other bytes than PNG and JPEG for a picture");
    expect(!images->pngOfJpeg("no picture", wide), "pngOfJpeg: takes other bytes for a JPEG");
    return findings;
}

} // namespace ombrivane::kit
