#pragma once

#include "platform/ExifOrientation.h"
#include "platform/ImageCodec.h"

#include <csetjmp>
#include <cstdint>
#include <cstdio> // jpeglib.h names FILE without including it
#include <vector>

#include <jpeglib.h>

namespace ombrivane {

/// Reads one JPEG. libjpeg leaves a failed call by a long jump, so each call stands in a step of its own that
/// holds no object with a destructor.
class JpegReader {
public:
    /// `bytes` must outlive the reader.
    explicit JpegReader(const std::string& bytes);
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader();

    /// The upright picture; nothing for one that is beyond the limits, damaged or cut short. @throws
    /// std::bad_alloc
    std::optional<Image> read(const PictureLimits& limits);

    /// The same in steps, as the points are stored, whatever way up: `begin`, `next` for each row from the
    /// top, `end`. After a step that fails the reader is of no more use.
    bool begin(const PictureLimits& limits);
    int width() const { return static_cast<int>(jpeg_.output_width); }
    int height() const { return static_cast<int>(jpeg_.output_height); }
    /// @param row four bytes a point: red, green, blue, opacity
    bool next(std::vector<std::uint8_t>& row);
    bool end() { return finish(); }

private:
    bool readHeader();
    bool start();
    bool readRow(std::uint8_t* row);
    bool finish();
    ExifOrientation orientation() const;

    static void leave(j_common_ptr shared);
    static void judgeWarning(j_common_ptr shared, int level);
    static void limitScans(j_common_ptr shared);

    const std::string& bytes_;
    jpeg_decompress_struct jpeg_{};
    jpeg_error_mgr errors_{};
    jpeg_progress_mgr progress_{};
    std::jmp_buf failed_{};
};

} // namespace ombrivane
