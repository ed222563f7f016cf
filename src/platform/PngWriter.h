#pragma once

#include "platform/Image.h"

#include <csetjmp>
#include <cstdint>
#include <optional>
#include <string>

#include <png.h>

namespace ombrivane {

/// Writes one PNG of eight bits a colour, with opacity only where a point is not opaque. As with the reader,
/// each call of libpng stands in a step of its own.
class PngWriter {
public:
    /// `image` must be whole and outlive the writer.
    explicit PngWriter(const Image& image) : image_(image) {}
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter();

    /// Nothing when memory ends.
    std::optional<std::string> write();

private:
    bool start();
    bool writeRow(const std::uint8_t* row);
    bool finish();
    bool isOpaque() const;
    bool keep(const png_byte* bytes, std::size_t count);

    static void leave(png_structp png, png_const_charp text);
    static void ignore(png_structp png, png_const_charp text);
    static void take(png_structp png, png_bytep bytes, std::size_t count);
    static void flush(png_structp png);

    const Image& image_;
    std::string written_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::jmp_buf failed_{};
};

} // namespace ombrivane
