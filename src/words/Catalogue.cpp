#include "words/Catalogue.h"

#include <cstdint>
#include <cstring>

namespace ombrivane {
namespace {

/// The tables of a .mo file: after a mark and a version stand the number of messages and where the lists of
/// originals and of translations begin, each a row of length and place; the originals are sorted.
class MessageTable {
public:
    explicit MessageTable(std::span<const unsigned char> data) : data_(data) {}

    std::size_t size() const { return word(8); }
    std::string_view original(std::size_t index) const { return at(word(12) + 8 * index); }
    std::string_view translation(std::size_t index) const { return at(word(16) + 8 * index); }

private:
    std::uint32_t word(std::size_t offset) const {
        std::uint32_t value = 0;
        std::memcpy(&value, data_.subspan(offset, sizeof value).data(), sizeof value);
        return value;
    }
    std::string_view at(std::size_t row) const {
        const auto bytes = data_.subspan(word(row + 4), word(row));
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

    std::span<const unsigned char> data_;
};

} // namespace

std::string translated(const Catalogue& catalogue, std::string_view key, std::string_view english) {
    constexpr char contextEnd = '\4';
    const std::string wanted = std::string(key) + contextEnd + std::string(english);
    const MessageTable table(catalogue.data);
    std::size_t first = 0;
    std::size_t last = table.size();
    while (first < last) {
        const std::size_t middle = (first + last) / 2;
        const int order = table.original(middle).compare(wanted);
        if (order == 0) return std::string(table.translation(middle));
        if (order < 0) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return "";
}

} // namespace ombrivane
