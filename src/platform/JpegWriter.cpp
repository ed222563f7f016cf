#include "platform/JpegWriter.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

#include <jerror.h>

namespace ombrivane {
namespace {

std::uint8_t onWhite(int colour, int opacity) {
    return static_cast<std::uint8_t>((colour * opacity + 255 * (255 - opacity) + 127) / 255);
}

} // namespace

JpegWriter::JpegWriter(const Image& image) : image_(image) {
    jpeg_.err = jpeg_std_error(&errors_);
    jpeg_.client_data = this;
    errors_.error_exit = leave;
    errors_.emit_message = ignore;
    destination_.init_destination = begin;
    destination_.empty_output_buffer = flush;
    destination_.term_destination = end;
}

JpegWriter::~JpegWriter() { jpeg_destroy_compress(&jpeg_); }

std::optional<std::string> JpegWriter::write(double quality) {
    if (!start(static_cast<int>(std::lround(std::clamp(quality, 0.0, 1.0) * 100)))) return std::nullopt;
    std::vector<std::uint8_t> row(static_cast<std::size_t>(image_.width) * 4);
    const std::uint8_t* source = image_.points->data();
    for (int y = 0; y < image_.height; ++y) {
        for (std::size_t x = 0; x < row.size(); x += 4, source += 4) {
            for (std::size_t c = 0; c < 3; ++c)
                row[x + c] = onWhite(source[c], source[3]);
        }
        if (!writeRow(row.data())) return std::nullopt;
    }
    if (!finish()) return std::nullopt;
    return std::move(written_);
}

bool JpegWriter::start(int percent) {
    if (setjmp(failed_) != 0) return false;
    jpeg_create_compress(&jpeg_);
    jpeg_.dest = &destination_;
    jpeg_.image_width = static_cast<JDIMENSION>(image_.width);
    jpeg_.image_height = static_cast<JDIMENSION>(image_.height);
    jpeg_.input_components = 4;
    jpeg_.in_color_space = JCS_EXT_RGBX;
    jpeg_set_defaults(&jpeg_);
    jpeg_set_quality(&jpeg_, percent, TRUE);
    jpeg_start_compress(&jpeg_, TRUE);
    return true;
}

bool JpegWriter::writeRow(std::uint8_t* row) {
    if (setjmp(failed_) != 0) return false;
    return jpeg_write_scanlines(&jpeg_, &row, 1) == 1;
}

bool JpegWriter::finish() {
    if (setjmp(failed_) != 0) return false;
    jpeg_finish_compress(&jpeg_);
    return true;
}

bool JpegWriter::keep(std::size_t count) {
    try {
        written_.append(reinterpret_cast<const char*>(buffer_.data()), count);
    } catch (const std::bad_alloc&) {
        return false;
    }
    begin(&jpeg_);
    return true;
}

void JpegWriter::leave(j_common_ptr shared) {
    std::longjmp(static_cast<JpegWriter*>(shared->client_data)->failed_, 1);
}

void JpegWriter::ignore(j_common_ptr /*shared*/, int /*level*/) {}

void JpegWriter::begin(j_compress_ptr jpeg) {
    auto* writer = static_cast<JpegWriter*>(jpeg->client_data);
    jpeg->dest->next_output_byte = writer->buffer_.data();
    jpeg->dest->free_in_buffer = writer->buffer_.size();
}

boolean JpegWriter::flush(j_compress_ptr jpeg) {
    auto* writer = static_cast<JpegWriter*>(jpeg->client_data);
    if (!writer->keep(writer->buffer_.size())) jpeg->err->error_exit(reinterpret_cast<j_common_ptr>(jpeg));
    return TRUE;
}

void JpegWriter::end(j_compress_ptr jpeg) {
    auto* writer = static_cast<JpegWriter*>(jpeg->client_data);
    const std::size_t used = writer->buffer_.size() - jpeg->dest->free_in_buffer;
    if (!writer->keep(used)) jpeg->err->error_exit(reinterpret_cast<j_common_ptr>(jpeg));
}

} // namespace ombrivane
