#include "platform/JpegReader.h"

#include <cstring>
#include <string_view>

#include <jerror.h>

namespace ombrivane {
namespace {

constexpr int exifMarker = JPEG_APP0 + 1;
constexpr unsigned longestMarker = 0xFFFF;
constexpr std::string_view exifPrefix = "Exif";

/// A progressive picture of a camera has about ten scans. Each costs a pass over the whole picture although
/// it may take a dozen bytes, so a small file could otherwise keep a thread busy for minutes.
constexpr int mostScans = 100;

/// Warnings about what stands beside the points. Every other one means that points would be made up.
bool isHarmless(int warning) {
    return warning == JWRN_EXTRANEOUS_DATA || warning == JWRN_ADOBE_XFORM || warning == JWRN_JFIF_MAJOR ||
           warning == JWRN_TOO_MUCH_DATA;
}

std::uint8_t scaled(int colour, int by) { return static_cast<std::uint8_t>((colour * by + 127) / 255); }

/// Printing colours to screen colours, in place and without a profile. Adobe's files hold them inverted.
void convertFromCmyk(std::vector<std::uint8_t>& row, bool isInverted) {
    for (std::size_t i = 0; i < row.size(); i += 4) {
        std::uint8_t* point = &row[i];
        const int black = isInverted ? point[3] : 255 - point[3];
        for (int c = 0; c < 3; ++c)
            point[c] = scaled(isInverted ? point[c] : 255 - point[c], black);
        point[3] = 255;
    }
}

} // namespace

JpegReader::JpegReader(const std::string& bytes) : bytes_(bytes) {
    jpeg_.err = jpeg_std_error(&errors_);
    jpeg_.client_data = this;
    errors_.error_exit = leave;
    errors_.emit_message = judgeWarning;
    progress_.progress_monitor = limitScans;
}

JpegReader::~JpegReader() { jpeg_destroy_decompress(&jpeg_); }

std::optional<Image> JpegReader::read(const PictureLimits& limits) {
    if (!begin(limits)) return std::nullopt;
    const auto placement = orientation().place(width(), height());
    std::vector<std::uint8_t> row(static_cast<std::size_t>(width()) * 4);
    auto points =
        std::make_shared<std::vector<std::uint8_t>>(row.size() * static_cast<std::size_t>(height()));
    for (int y = 0; y < height(); ++y) {
        if (!next(row)) return std::nullopt;
        std::uint8_t* target = points->data() + (placement.first + y * placement.perRow) * 4;
        for (std::size_t x = 0; x < row.size(); x += 4) {
            std::memcpy(target, &row[x], 4);
            target += placement.perColumn * 4;
        }
    }
    if (!end()) return std::nullopt;
    return Image{placement.width, placement.height, std::move(points)};
}

bool JpegReader::begin(const PictureLimits& limits) {
    return readHeader() && limits.allow(jpeg_.image_width, jpeg_.image_height) && start();
}

bool JpegReader::next(std::vector<std::uint8_t>& row) {
    if (!readRow(row.data())) return false;
    if (jpeg_.out_color_space == JCS_CMYK) convertFromCmyk(row, jpeg_.saw_Adobe_marker != 0);
    return true;
}

bool JpegReader::readHeader() {
    if (setjmp(failed_) != 0) return false;
    jpeg_create_decompress(&jpeg_);
    jpeg_.progress = &progress_;
    jpeg_mem_src(&jpeg_, reinterpret_cast<const unsigned char*>(bytes_.data()), bytes_.size());
    jpeg_save_markers(&jpeg_, exifMarker, longestMarker);
    return jpeg_read_header(&jpeg_, TRUE) == JPEG_HEADER_OK;
}

bool JpegReader::start() {
    if (setjmp(failed_) != 0) return false;
    const bool isPrint = jpeg_.jpeg_color_space == JCS_CMYK || jpeg_.jpeg_color_space == JCS_YCCK;
    jpeg_.out_color_space = isPrint ? JCS_CMYK : JCS_EXT_RGBA;
    return jpeg_start_decompress(&jpeg_) != 0;
}

bool JpegReader::readRow(std::uint8_t* row) {
    if (setjmp(failed_) != 0) return false;
    return jpeg_read_scanlines(&jpeg_, &row, 1) == 1;
}

bool JpegReader::finish() {
    if (setjmp(failed_) != 0) return false;
    return jpeg_finish_decompress(&jpeg_) != 0;
}

ExifOrientation JpegReader::orientation() const {
    for (auto marker = jpeg_.marker_list; marker != nullptr; marker = marker->next) {
        const std::string_view payload(reinterpret_cast<const char*>(marker->data), marker->data_length);
        if (payload.starts_with(exifPrefix)) return ExifOrientation::of(payload);
    }
    return {};
}

void JpegReader::leave(j_common_ptr shared) {
    std::longjmp(static_cast<JpegReader*>(shared->client_data)->failed_, 1);
}

void JpegReader::judgeWarning(j_common_ptr shared, int level) {
    if (level < 0 && !isHarmless(shared->err->msg_code)) leave(shared);
}

void JpegReader::limitScans(j_common_ptr shared) {
    const auto* reader = static_cast<const JpegReader*>(shared->client_data);
    if (reader->jpeg_.input_scan_number > mostScans) leave(shared);
}

} // namespace ombrivane
