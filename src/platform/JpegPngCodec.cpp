#include "platform/JpegPngCodec.h"

#include "platform/JpegReader.h"
#include "platform/JpegWriter.h"
#include "platform/PngReader.h"
#include "platform/PngWriter.h"

#include <new>
#include <string_view>

namespace ombrivane {
namespace {

constexpr std::string_view jpegSignature = "\xFF\xD8\xFF";
constexpr std::string_view pngSignature = "\x89PNG\r\n\x1A\n";

bool isWhole(const Image& image) {
    if (image.width <= 0 || image.height <= 0 || !image.points) return false;
    const auto points = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
    return image.points->size() == points * 4;
}

} // namespace

std::optional<Image> JpegPngCodec::decode(const std::string& bytes, const PictureLimits& limits) {
    if (bytes.size() > limits.bytes) return std::nullopt;
    try {
        if (bytes.starts_with(jpegSignature)) return JpegReader(bytes).read(limits);
        if (bytes.starts_with(pngSignature)) return PngReader(bytes).read(limits);
    } catch (const std::bad_alloc&) {
        // A device without room for the points shows the placeholder.
    }
    return std::nullopt;
}

std::optional<std::string> JpegPngCodec::jpeg(const Image& image, double quality) {
    if (!isWhole(image)) return std::nullopt;
    try {
        return JpegWriter(image).write(quality);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<std::string> JpegPngCodec::png(const Image& image) {
    if (!isWhole(image)) return std::nullopt;
    return PngWriter(image.width, image.height).write(image);
}

std::optional<std::string> JpegPngCodec::pngOfJpeg(const std::string& jpeg, const PictureLimits& limits) {
    if (jpeg.size() > limits.bytes) return std::nullopt;
    try {
        JpegReader reader(jpeg);
        if (!reader.begin(limits)) return std::nullopt;
        PngWriter writer(reader.width(), reader.height());
        std::vector<std::uint8_t> row(static_cast<std::size_t>(reader.width()) * 4);
        if (!writer.begin(true)) return std::nullopt;
        for (int y = 0; y < reader.height(); ++y)
            if (!reader.next(row) || !writer.add(row.data())) return std::nullopt;
        return reader.end() ? writer.end() : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace ombrivane
