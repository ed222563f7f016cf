#include "sandbox/wire/Gzip.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace ombrivane::sandbox {

namespace {

class GzipStream {
public:
    GzipStream() {
        constexpr int gzipFormat = 15 + 16;
        if (deflateInit2(&stream_, Z_BEST_COMPRESSION, Z_DEFLATED, gzipFormat, 9, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::runtime_error("zlib does not start");
    }
    ~GzipStream() { deflateEnd(&stream_); }
    GzipStream(const GzipStream&) = delete;
    GzipStream& operator=(const GzipStream&) = delete;

    void add(std::string_view bytes, int flush = Z_NO_FLUSH) {
        std::vector<unsigned char> input(bytes.begin(), bytes.end());
        stream_.next_in = input.data();
        stream_.avail_in = static_cast<uInt>(input.size());
        do {
            std::array<char, 4096> buffer{};
            stream_.next_out = reinterpret_cast<unsigned char*>(buffer.data());
            stream_.avail_out = static_cast<uInt>(buffer.size());
            deflate(&stream_, flush);
            packed_.append(buffer.data(), buffer.size() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }

    std::string finish() {
        add({}, Z_FINISH);
        return std::move(packed_);
    }

private:
    z_stream stream_{};
    std::string packed_;
};

} // namespace

std::string gzippedFiller(std::string_view start, std::uint64_t size, std::string_view end,
                          std::string_view filler) {
    const std::uint64_t frame = start.size() + end.size();
    std::uint64_t left = size > frame ? size - frame : 0;
    constexpr std::size_t pieceSize = 64UL * 1024;
    std::string pieces;
    while (pieces.size() < pieceSize)
        pieces += filler;
    GzipStream stream;
    stream.add(start);
    while (left > 0) {
        const auto piece = static_cast<std::size_t>(std::min<std::uint64_t>(left, pieces.size()));
        stream.add(std::string_view(pieces).substr(0, piece));
        left -= piece;
    }
    stream.add(end);
    return stream.finish();
}

} // namespace ombrivane::sandbox
