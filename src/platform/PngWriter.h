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
    /// For a picture of this size, in points.
    PngWriter(int width, int height) : width_(width), height_(height) {}
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter();

    /// The whole of `image`, which is of the size told. Nothing when memory ends.
    std::optional<std::string> write(const Image& image);

    /// The same in steps: `begin`, `add` for each row from the top, `end`. After a step that fails the writer
    /// is of no more use.
    bool begin(bool opaque);
    /// @param row four bytes a point: red, green, blue, opacity
    bool add(const std::uint8_t* row);
    std::optional<std::string> end();

private:
    bool finish();
    bool keep(const png_byte* bytes, std::size_t count);

    static void leave(png_structp png, png_const_charp text);
    static void ignore(png_structp png, png_const_charp text);
    static void take(png_structp png, png_bytep bytes, std::size_t count);
    static void flush(png_structp png);

    int width_;
    int height_;
    std::string written_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::jmp_buf failed_{};
};

} // namespace ombrivane
