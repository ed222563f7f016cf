#include "base/Uuid.h"

#include <cstring>
#include <random>

namespace ombrivane {
namespace {

constexpr std::string_view digits = "0123456789ABCDEF";
constexpr std::string_view shape = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

std::mt19937_64& generator() {
    thread_local std::mt19937_64 instance = [] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }();
    return instance;
}

int hexValue(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    return -1;
}

} // namespace

Uuid Uuid::random() {
    Uuid uuid;
    for (std::size_t half = 0; half < 2; ++half) {
        const std::uint64_t bits = generator()();
        std::memcpy(uuid.bytes_.data() + half * 8, &bits, 8);
    }
    uuid.bytes_[6] = static_cast<std::uint8_t>((uuid.bytes_[6] & 0x0F) | 0x40);
    uuid.bytes_[8] = static_cast<std::uint8_t>((uuid.bytes_[8] & 0x3F) | 0x80);
    return uuid;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != shape.size()) return std::nullopt;
    Uuid uuid;
    std::size_t nibble = 0;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] == '-') {
            if (text[i] != '-') return std::nullopt;
            continue;
        }
        const int value = hexValue(text[i]);
        if (value < 0) return std::nullopt;
        auto& byte = uuid.bytes_[nibble / 2];
        byte = static_cast<std::uint8_t>((byte << 4) | value);
        ++nibble;
    }
    return uuid;
}

std::string Uuid::text() const {
    std::string text(shape);
    char* character = text.data();
    for (const std::uint8_t byte : bytes_) {
        if (*character == '-') ++character;
        *character++ = digits[byte >> 4];
        *character++ = digits[byte & 0x0F];
    }
    return text;
}

} // namespace ombrivane

std::size_t std::hash<ombrivane::Uuid>::operator()(const ombrivane::Uuid& uuid) const noexcept {
    std::size_t half = 0;
    std::memcpy(&half, uuid.bytes_.data(), sizeof half);
    return half;
}
