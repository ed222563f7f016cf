#include "sandbox/world/Png.h"

#include <png.h>

#include <stdexcept>

namespace ombrivane::sandbox {

namespace {

constexpr std::uint64_t pointLimit = 64 * 1024 * 1024;

struct Image : png_image {
    Image() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~Image() { png_image_free(this); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
};

} // namespace

std::string encodePng(unsigned size, const std::vector<std::uint8_t>& points) {
    Image image;
    image.width = size;
    image.height = size;
    image.format = PNG_FORMAT_RGBA;
    png_alloc_size_t length = 0;
    if (png_image_write_get_memory_size(image, length, 0, points.data(), 0, nullptr) == 0)
        throw std::runtime_error(image.message);
    std::string bytes(length, '\0');
    if (png_image_write_to_memory(&image, bytes.data(), &length, 0, points.data(), 0, nullptr) == 0)
        throw std::runtime_error(image.message);
    bytes.resize(length);
    return bytes;
}

std::string pngFault(std::string_view bytes) {
    constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
    if (bytes.substr(0, signature.size()) != signature) return "it has no PNG signature";
    Image image;
    if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) return image.message;
    if (std::uint64_t{image.width} * image.height > pointLimit) return "it has too many points";
    image.format = PNG_FORMAT_GRAY;
    std::vector<std::uint8_t> points(PNG_IMAGE_SIZE(image));
    const png_color white{255, 255, 255};
    if (png_image_finish_read(&image, &white, points.data(), 0, nullptr) == 0) return image.message;
    return {};
}

} // namespace ombrivane::sandbox
