#pragma once

#include "platform/ImageCodec.h"

#include <csetjmp>
#include <cstdint>
#include <string_view>

#include <png.h>

namespace ombrivane {

/// Reads one PNG of any colour type, depth and interlace. libpng leaves a failed call by a long jump, so each
/// call stands in a step of its own that holds no object with a destructor.
class PngReader {
public:
    /// `bytes` must outlive the reader.
    explicit PngReader(std::string_view bytes) : rest_(bytes) {}
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
    ~PngReader();

    /// The picture; nothing for one that is beyond the limits, damaged or cut short. @throws std::bad_alloc
    std::optional<Image> read(const PictureLimits& limits);

private:
    bool readHeader();
    bool start();
    bool readRow(std::uint8_t* row);
    bool finish();

    static void leave(png_structp png, png_const_charp text);
    static void ignore(png_structp png, png_const_charp text);
    static void supply(png_structp png, png_bytep target, std::size_t count);

    std::string_view rest_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    int passes_ = 1;
    std::jmp_buf failed_{};
};

} // namespace ombrivane
