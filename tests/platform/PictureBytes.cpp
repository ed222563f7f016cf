#include "platform/PictureBytes.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace ombrivane::fakes {
namespace {

std::string bigEndian(std::uint32_t value, int bytes = 4) {
    std::string text;
    for (int i = bytes - 1; i >= 0; --i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

std::string number(std::uint32_t value, int bytes, bool littleEndian) {
    const std::string text = bigEndian(value, bytes);
    return littleEndian ? std::string(text.rbegin(), text.rend()) : text;
}

std::uint32_t checksum(const std::string& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char c : bytes) {
        crc ^= static_cast<std::uint8_t>(c);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

/// A zlib stream that packs nothing.
std::string stored(const std::string& bytes) {
    const auto size = static_cast<std::uint32_t>(bytes.size());
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<std::uint8_t>(c)) % 65521;
        b = (b + a) % 65521;
    }
    return "\x78\x01\x01" + number(size, 2, true) + number(~size, 2, true) + bytes + bigEndian(b << 16U | a);
}

} // namespace

Image plainImage(int width, int height, std::vector<std::uint8_t> point) {
    auto points = std::make_shared<std::vector<std::uint8_t>>();
    for (int i = 0; i < width * height; ++i)
        points->insert(points->end(), point.begin(), point.end());
    return {width, height, std::move(points)};
}

std::string pngChunk(const std::string& type, const std::string& data) {
    return bigEndian(static_cast<std::uint32_t>(data.size())) + type + data +
           bigEndian(checksum(type + data));
}

std::string pngHeader(std::uint32_t width, std::uint32_t height, int depth, int colourType, int interlace) {
    const std::string rest{
        static_cast<char>(depth), static_cast<char>(colourType), 0, 0, static_cast<char>(interlace)};
    return pngChunk("IHDR", bigEndian(width) + bigEndian(height) + rest);
}

std::string pngOf(const std::string& header, const std::string& rows, const std::string& before) {
    return "\x89PNG\r\n\x1A\n" + header + before + pngChunk("IDAT", stored(rows)) + pngChunk("IEND", "");
}

std::string exifMarker(int orientation, bool littleEndian) {
    const auto n = [littleEndian](std::uint32_t value, int bytes) {
        return number(value, bytes, littleEndian);
    };
    const std::string make = n(0x010F, 2) + n(2, 2) + n(1, 4) + n(0, 4);
    const std::string held =
        n(0x0112, 2) + n(3, 2) + n(1, 4) + n(static_cast<std::uint32_t>(orientation), 2) + n(0, 2);
    const std::string payload = std::string("Exif\0\0", 6) + (littleEndian ? "II" : "MM") + n(42, 2) +
                                n(8, 4) + n(2, 2) + make + held + n(0, 4);
    return "\xFF\xE1" + bigEndian(static_cast<std::uint32_t>(payload.size() + 2), 2) + payload;
}

std::string withMarker(const std::string& jpeg, const std::string& marker) {
    return jpeg.substr(0, 2) + marker + jpeg.substr(2);
}

std::string cmykJpeg(const std::vector<std::uint8_t>& point) {
    jpeg_error_mgr errors{};
    jpeg_compress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &bytes, &size);
    jpeg.image_width = jpeg.image_height = 8;
    jpeg.input_components = 4;
    jpeg.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 100, TRUE);
    jpeg.write_Adobe_marker = TRUE;
    jpeg_start_compress(&jpeg, TRUE);
    std::vector<std::uint8_t> row;
    for (int x = 0; x < 8; ++x)
        row.insert(row.end(), point.begin(), point.end());
    JSAMPROW start = row.data();
    for (int y = 0; y < 8; ++y)
        jpeg_write_scanlines(&jpeg, &start, 1);
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    std::string written(bytes, bytes + size);
    std::free(bytes);
    return written;
}

} // namespace ombrivane::fakes
