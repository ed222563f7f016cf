#include "platform/PngReader.h"

#include <cstring>

namespace ombrivane {

PngReader::~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }

std::optional<Image> PngReader::read(const PictureLimits& limits) {
    if (!readHeader()) return std::nullopt;
    const long long width = png_get_image_width(png_, info_);
    const long long height = png_get_image_height(png_, info_);
    if (!limits.allow(width, height) || !start()) return std::nullopt;

    const std::size_t rowBytes = png_get_rowbytes(png_, info_);
    if (rowBytes != static_cast<std::size_t>(width) * 4) return std::nullopt;
    auto points = std::make_shared<std::vector<std::uint8_t>>(rowBytes * static_cast<std::size_t>(height));
    for (int pass = 0; pass < passes_; ++pass) {
        for (std::size_t at = 0; at < points->size(); at += rowBytes) {
            if (!readRow(points->data() + at)) return std::nullopt;
        }
    }
    if (!finish()) return std::nullopt;
    return Image{static_cast<int>(width), static_cast<int>(height), std::move(points)};
}

bool PngReader::readHeader() {
    if (setjmp(failed_) != 0) return false;
    png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, leave, ignore);
    if (png_ == nullptr) return false;
    info_ = png_create_info_struct(png_);
    if (info_ == nullptr) return false;
    png_set_read_fn(png_, this, supply);
    // Everything but the points, their colours and their opacity is skipped unread: a compressed text of a
    // thousandth of its size would otherwise be unpacked and kept.
    png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_read_info(png_, info_);
    return true;
}

bool PngReader::start() {
    if (setjmp(failed_) != 0) return false;
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
    passes_ = png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    return true;
}

bool PngReader::readRow(std::uint8_t* row) {
    if (setjmp(failed_) != 0) return false;
    png_read_row(png_, row, nullptr);
    return true;
}

bool PngReader::finish() {
    if (setjmp(failed_) != 0) return false;
    png_read_end(png_, nullptr);
    return true;
}

void PngReader::leave(png_structp png, png_const_charp /*text*/) {
    std::longjmp(static_cast<PngReader*>(png_get_error_ptr(png))->failed_, 1);
}

void PngReader::ignore(png_structp /*png*/, png_const_charp /*text*/) {}

void PngReader::supply(png_structp png, png_bytep target, std::size_t count) {
    auto* reader = static_cast<PngReader*>(png_get_io_ptr(png));
    if (count > reader->rest_.size()) png_error(png, "");
    std::memcpy(target, reader->rest_.data(), count);
    reader->rest_.remove_prefix(count);
}

} // namespace ombrivane
