#pragma once

#include "platform/Image.h"

#include <array>
#include <csetjmp>
#include <cstdint>
#include <cstdio> // jpeglib.h names FILE without including it
#include <optional>
#include <string>

#include <jpeglib.h>

namespace ombrivane {

/// Writes one JPEG. As with the reader, each call of libjpeg stands in a step of its own.
class JpegWriter {
public:
    /// `image` must be whole and outlive the writer.
    explicit JpegWriter(const Image& image);
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;
    ~JpegWriter();

    /// `quality` from 0 to 1; what is transparent stands on white. Nothing when a side is beyond the format's
    /// or memory ends. @throws std::bad_alloc
    std::optional<std::string> write(double quality);

private:
    bool start(int percent);
    bool writeRow(std::uint8_t* row);
    bool finish();
    bool keep(std::size_t count);

    static void leave(j_common_ptr shared);
    static void ignore(j_common_ptr shared, int level);
    static void begin(j_compress_ptr jpeg);
    static boolean flush(j_compress_ptr jpeg);
    static void end(j_compress_ptr jpeg);

    const Image& image_;
    std::string written_;
    std::array<unsigned char, 65'536> buffer_{};
    jpeg_compress_struct jpeg_{};
    jpeg_error_mgr errors_{};
    jpeg_destination_mgr destination_{};
    std::jmp_buf failed_{};
};

} // namespace ombrivane
