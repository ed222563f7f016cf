#include "platform/JpegPngCodec.h"

#include "platform/ExifOrientation.h"
#include "platform/Limits.h"
#include "platform/PictureBytes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace ombrivane {
namespace {

using namespace fakes;

using Point = std::vector<int>;

constexpr double best = 1.0;

Point at(const Image& image, int x, int y) {
    const auto* start = image.points->data() + (y * image.width + x) * 4;
    return {start, start + 4};
}

bool isNear(const Point& a, const Point& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > 8) return false;
    }
    return true;
}

std::string bytesOf(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values)
        text += static_cast<char>(value);
    return text;
}

/// A picture whose four corners differ, wider than high.
Image cornered() {
    const std::vector<std::vector<std::uint8_t>> corners = {
        {255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}};
    auto points = std::make_shared<std::vector<std::uint8_t>>();
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 64; ++x) {
            const auto& point = corners[static_cast<std::size_t>((y / 16) * 2 + x / 32)];
            points->insert(points->end(), point.begin(), point.end());
        }
    }
    return {64, 32, std::move(points)};
}

char cornerName(const Image& image, bool right, bool bottom) {
    const Point point = at(image, right ? image.width - 4 : 3, bottom ? image.height - 4 : 3);
    if (isNear(point, {255, 0, 0, 255})) return 'R';
    if (isNear(point, {0, 255, 0, 255})) return 'G';
    if (isNear(point, {0, 0, 255, 255})) return 'B';
    return isNear(point, {255, 255, 255, 255}) ? 'W' : '?';
}

/// Top left, top right, bottom left, bottom right.
std::string cornersOf(const Image& image) {
    return {cornerName(image, false, false),
            cornerName(image, true, false),
            cornerName(image, false, true),
            cornerName(image, true, true)};
}

TEST(JpegPngCodec, StandsEveryOrientationOfACameraUpright) {
    JpegPngCodec codec;
    const std::string jpeg = *codec.jpeg(cornered(), best);
    const std::vector<std::string> upright = {
        "RGBW", "RGBW", "GRWB", "WBGR", "BWRG", "RBGW", "BRWG", "WGBR", "GWRB", "RGBW"};
    for (const bool littleEndian : {false, true}) {
        for (int orientation = 0; orientation <= 9; ++orientation) {
            const auto image =
                codec.decode(withMarker(jpeg, exifMarker(orientation, littleEndian)), documentLimits());
            ASSERT_TRUE(image) << orientation;
            EXPECT_EQ(cornersOf(*image), upright[static_cast<std::size_t>(orientation)]) << orientation;
            EXPECT_EQ(image->width, orientation >= 5 && orientation <= 8 ? 32 : 64) << orientation;
        }
    }
}

TEST(JpegPngCodec, TakesAMalformedOrientationForUpright) {
    const std::string payload = exifMarker(6, false).substr(4);
    const std::string_view whole = payload;
    const std::size_t needed = payload.size() - 6; // behind the value come its filling and the next directory
    EXPECT_EQ(ExifOrientation::of(whole.substr(0, needed)).value(), 6);
    for (std::size_t length = 0; length < needed; ++length) {
        EXPECT_EQ(ExifOrientation::of(whole.substr(0, length)).value(), 1) << length;
    }
    for (const auto& [at, bytes] : {std::pair(6, "XX"),
                                    std::pair(9, "x"),
                                    std::pair(10, "\xFF\xFF\xFF\xFF"),
                                    std::pair(29, "\x09"),
                                    std::pair(36, "\xFF\xFF")}) {
        std::string broken = payload;
        broken.replace(static_cast<std::size_t>(at), std::string(bytes).size(), bytes);
        EXPECT_EQ(ExifOrientation::of(broken).value(), 1) << at;
    }
}

TEST(JpegPngCodec, ReadsEveryKindOfPng) {
    const std::string palette = pngChunk("PLTE", bytesOf({10, 20, 30, 40, 50, 60}));
    struct Case {
        const char* name;
        std::string bytes;
        Point first;
        Point second;
    };
    const std::vector<Case> cases = {
        {"1 bit grey",
         pngOf(pngHeader(2, 1, 1, 0), bytesOf({0, 0x40})),
         {0, 0, 0, 255},
         {255, 255, 255, 255}},
        {"2 bit grey",
         pngOf(pngHeader(2, 1, 2, 0), bytesOf({0, 0x70})),
         {85, 85, 85, 255},
         {255, 255, 255, 255}},
        {"4 bit grey",
         pngOf(pngHeader(2, 1, 4, 0), bytesOf({0, 0x1F})),
         {17, 17, 17, 255},
         {255, 255, 255, 255}},
        {"8 bit grey", pngOf(pngHeader(2, 1, 8, 0), bytesOf({0, 7, 8})), {7, 7, 7, 255}, {8, 8, 8, 255}},
        {"16 bit grey with one clear shade",
         pngOf(pngHeader(2, 1, 16, 0), bytesOf({0, 7, 7, 8, 8}), pngChunk("tRNS", bytesOf({7, 7}))),
         {7, 7, 7, 0},
         {8, 8, 8, 255}},
        {"8 bit colour",
         pngOf(pngHeader(2, 1, 8, 2), bytesOf({0, 1, 2, 3, 4, 5, 6})),
         {1, 2, 3, 255},
         {4, 5, 6, 255}},
        {"1 bit palette",
         pngOf(pngHeader(2, 1, 1, 3), bytesOf({0, 0x40}), palette),
         {10, 20, 30, 255},
         {40, 50, 60, 255}},
        {"palette with opacity",
         pngOf(pngHeader(2, 1, 8, 3), bytesOf({0, 1, 0}), palette + pngChunk("tRNS", bytesOf({99}))),
         {40, 50, 60, 255},
         {10, 20, 30, 99}},
        {"grey with opacity",
         pngOf(pngHeader(2, 1, 8, 4), bytesOf({0, 9, 8, 7, 6})),
         {9, 9, 9, 8},
         {7, 7, 7, 6}},
        {"16 bit colour with opacity",
         pngOf(pngHeader(2, 1, 16, 6), bytesOf({0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8, 8})),
         {1, 2, 3, 4},
         {5, 6, 7, 8}},
        {"interlaced",
         pngOf(pngHeader(2, 1, 8, 0, 1), bytesOf({0, 7, 0, 8})),
         {7, 7, 7, 255},
         {8, 8, 8, 255}},
    };
    for (const auto& c : cases) {
        const auto image = JpegPngCodec().decode(c.bytes, logoLimits());
        ASSERT_TRUE(image) << c.name;
        ASSERT_EQ(image->width, 2) << c.name;
        EXPECT_EQ(at(*image, 0, 0), c.first) << c.name;
        EXPECT_EQ(at(*image, 1, 0), c.second) << c.name;
    }
}

TEST(JpegPngCodec, ReadsPrintingColours) {
    const auto image = JpegPngCodec().decode(cmykJpeg({255, 128, 0, 255}), logoLimits());
    ASSERT_TRUE(image);
    EXPECT_TRUE(isNear(at(*image, 4, 4), {255, 128, 0, 255}));
    EXPECT_TRUE(
        isNear(at(*JpegPngCodec().decode(cmykJpeg({255, 255, 255, 0}), logoLimits()), 4, 4), {0, 0, 0, 255}));
}

/// The bytes of `jpeg` with another size in its frame header.
std::string claiming(std::string jpeg, int height, int width) {
    const std::size_t frame = jpeg.find("\xFF\xC0");
    jpeg.replace(frame + 5, 4, bytesOf({height >> 8, height & 255, width >> 8, width & 255}));
    return jpeg;
}

TEST(JpegPngCodec, TakesNothingHostileForAPicture) {
    JpegPngCodec codec;
    const Image image = cornered();
    const std::string png = *codec.png(image);
    const std::string jpeg = *codec.jpeg(image, best);
    std::string flipped = png;
    flipped[png.size() / 2] ^= 0x10;
    std::string scribbled = jpeg;
    scribbled.replace(jpeg.size() - 40, 30, 30, '\x01');
    const std::string row = bytesOf({0, 1, 2});
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"nothing", ""},
        {"another format", "GIF89a\1\0\1\0"},
        {"a drawing", "<svg xmlns=\"http://www.w3.org/2000/svg\"><image href=\"file:///dev/zero\"/></svg>"},
        {"a PNG's signature", png.substr(0, 8)},
        {"a PNG without its end", png.substr(0, png.size() - 12)},
        {"half a PNG", png.substr(0, png.size() / 2)},
        {"a PNG with a wrong bit", flipped},
        {"a PNG of 30000 by 30000", pngOf(pngHeader(30000, 30000, 8, 2), row)},
        {"a PNG of 2 billion by 2 billion", pngOf(pngHeader(0x7FFFFFFF, 0x7FFFFFFF, 8, 2), row)},
        {"a PNG without width", pngOf(pngHeader(0, 1, 8, 0), row)},
        {"a PNG with too few rows", pngOf(pngHeader(2, 9, 8, 0), row)},
        {"a PNG of an unknown colour type", pngOf(pngHeader(2, 1, 8, 5), row)},
        {"a PNG without its palette", pngOf(pngHeader(2, 1, 8, 3), row)},
        {"a JPEG's signature", jpeg.substr(0, 3)},
        {"a JPEG without its end", jpeg.substr(0, jpeg.size() - 2)},
        {"half a JPEG", jpeg.substr(0, jpeg.size() / 2)},
        {"a JPEG scribbled over", scribbled},
        {"a JPEG of 30000 by 30000", claiming(jpeg, 30000, 30000)},
        {"a JPEG larger than its points", claiming(jpeg, 320, 640)},
        {"a JPEG without height", claiming(jpeg, 0, 64)},
    };
    testing::internal::CaptureStderr();
    for (const auto& [name, bytes] : cases) {
        EXPECT_FALSE(codec.decode(bytes, logoLimits())) << name;
        EXPECT_FALSE(codec.decode(bytes, documentLimits())) << name;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(JpegPngCodec, ReadsNoPictureBeyondItsLimits) {
    JpegPngCodec codec;
    const std::string png = *codec.png(plainImage(20, 10, {1, 2, 3, 255}));
    const std::size_t bytes = png.size();
    EXPECT_TRUE(codec.decode(png, {bytes, 20, 200}));
    EXPECT_FALSE(codec.decode(png, {bytes - 1, 20, 200}));
    EXPECT_FALSE(codec.decode(png, {bytes, 19, 200}));
    EXPECT_FALSE(codec.decode(png, {bytes, 20, 199}));

    const int side = limits::logoSide;
    EXPECT_TRUE(codec.decode(*codec.png(plainImage(side, 1, {1, 2, 3, 255})), logoLimits()));
    EXPECT_FALSE(codec.decode(*codec.png(plainImage(side + 1, 1, {1, 2, 3, 255})), logoLimits()));
    EXPECT_FALSE(codec.decode(*codec.jpeg(plainImage(1, side + 1, {1, 2, 3, 255}), best), logoLimits()));
}

TEST(JpegPngCodec, WritesPngWithoutLossAndWithoutAnythingBesides) {
    JpegPngCodec codec;
    auto translucent = plainImage(1, 1, {10, 20, 30, 40});
    for (const auto& [image, colourType] : {std::pair(cornered(), 2), std::pair(translucent, 6)}) {
        const std::string png = *codec.png(image);
        EXPECT_EQ(png[25], colourType);
        EXPECT_EQ(*codec.decode(png, documentLimits())->points, *image.points);
        EXPECT_EQ(png.substr(37, 4), "IDAT") << "the points follow the header";
    }
}

TEST(JpegPngCodec, WritesJpegOnWhiteAndSmallerWithLessQuality) {
    JpegPngCodec codec;
    const auto jpeg = codec.jpeg(plainImage(8, 8, {0, 0, 0, 128}), best);
    EXPECT_TRUE(isNear(at(*codec.decode(*jpeg, logoLimits()), 4, 4), {127, 127, 127, 255}));
    EXPECT_LT(codec.jpeg(cornered(), 0.5)->size(), codec.jpeg(cornered(), best)->size());
    EXPECT_EQ(jpeg->find("Exif"), std::string::npos);
}

TEST(JpegPngCodec, WritesTheSamePngRowByRow) {
    JpegPngCodec codec;
    const std::string jpeg = *codec.jpeg(cornered(), best);
    EXPECT_EQ(codec.pngOfJpeg(jpeg, documentLimits()), codec.png(*codec.decode(jpeg, documentLimits())));
    EXPECT_FALSE(codec.pngOfJpeg(jpeg.substr(0, jpeg.size() / 2), documentLimits())) << "cut short";
    EXPECT_FALSE(codec.pngOfJpeg(jpeg, {jpeg.size(), 1, 1})) << "beyond its limits";
    EXPECT_FALSE(codec.pngOfJpeg("", documentLimits()));
}

TEST(JpegPngCodec, WritesNothingForWhatIsNoWholePicture) {
    JpegPngCodec codec;
    Image cut = cornered();
    cut.height += 1;
    for (const auto& image : {Image{}, cut, Image{-1, -1, cut.points}}) {
        EXPECT_FALSE(codec.png(image));
        EXPECT_FALSE(codec.jpeg(image, best));
    }
    EXPECT_FALSE(codec.jpeg(plainImage(65'501, 1, {0, 0, 0, 255}), best))
        << "beyond the format's longest side";
}

} // namespace
} // namespace ombrivane
