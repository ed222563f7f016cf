#include "platform/ExifOrientation.h"

#include <cstdint>
#include <optional>

namespace ombrivane {
namespace {

constexpr std::string_view exifHeader{"Exif\0\0", 6};
constexpr std::uint32_t orientationTag = 0x0112;
constexpr std::uint32_t shortType = 3;
constexpr std::size_t entryBytes = 12;

/// The block of tagged values within the marker, in the byte order that it names.
class TaggedBlock {
public:
    explicit TaggedBlock(std::string_view bytes) : bytes_(bytes), isLittle_(bytes.starts_with("II")) {}

    bool hasHeader() const { return (isLittle_ || bytes_.starts_with("MM")) && number(2, 2) == 42; }

    /// The number of `size` bytes at `offset`; nothing when it would lie outside.
    std::optional<std::uint32_t> number(std::size_t offset, std::size_t size) const {
        if (offset > bytes_.size() || bytes_.size() - offset < size) return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t at = isLittle_ ? size - 1 - i : i;
            value = value << 8U | static_cast<std::uint8_t>(bytes_[offset + at]);
        }
        return value;
    }

private:
    std::string_view bytes_;
    bool isLittle_;
};

std::optional<std::uint32_t> orientationIn(const TaggedBlock& block) {
    if (!block.hasHeader()) return std::nullopt;
    const auto directory = block.number(4, 4);
    const auto count = directory ? block.number(*directory, 2) : std::nullopt;
    if (!count) return std::nullopt;
    for (std::size_t i = 0; i < *count; ++i) {
        const std::size_t entry = std::size_t{*directory} + 2 + i * entryBytes;
        const auto tag = block.number(entry, 2);
        if (!tag) return std::nullopt;
        if (tag == orientationTag && block.number(entry + 2, 2) == shortType)
            return block.number(entry + 8, 2);
    }
    return std::nullopt;
}

} // namespace

ExifOrientation ExifOrientation::of(std::string_view payload) {
    ExifOrientation orientation;
    if (!payload.starts_with(exifHeader)) return orientation;
    const auto value = orientationIn(TaggedBlock(payload.substr(exifHeader.size())));
    if (value && *value >= 1 && *value <= 8) orientation.value_ = static_cast<int>(*value);
    return orientation;
}

ExifOrientation::Placement ExifOrientation::place(int width, int height) const {
    const bool swapsSides = value_ >= 5;
    const bool fromRight = value_ == 2 || value_ == 3 || value_ == 7 || value_ == 8;
    const bool fromBottom = value_ == 3 || value_ == 4 || value_ == 6 || value_ == 7;
    Placement placement{};
    placement.width = swapsSides ? height : width;
    placement.height = swapsSides ? width : height;
    placement.perColumn = swapsSides ? placement.width : 1;
    placement.perRow = swapsSides ? 1 : placement.width;
    if (fromRight) {
        placement.first += placement.perColumn * (width - 1);
        placement.perColumn = -placement.perColumn;
    }
    if (fromBottom) {
        placement.first += placement.perRow * (height - 1);
        placement.perRow = -placement.perRow;
    }
    return placement;
}

} // namespace ombrivane
