// Choices that look random and are the same every time: a stream of numbers from the seed and a subject.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

class Dice {
public:
    Dice(std::uint64_t seed, std::string_view subject);

    std::uint64_t next();

    /// 0 to `count` - 1.
    std::size_t below(std::size_t count);

    /// `least` to `most`, both included.
    int between(int least, int most);

    bool percent(int chance) { return between(1, 100) <= chance; }

    /// That many letters out of the alphabet.
    std::string letters(std::size_t count, std::string_view alphabet);

private:
    std::uint64_t state_;
};

inline constexpr std::string_view capitals = "ABCDEFGHJKLMNPQRSTUVWXYZ";
inline constexpr std::string_view capitalsAndDigits = "ABCDEFGHJKLMNPQRSTUVWXYZ23456789";
inline constexpr std::string_view digits = "0123456789";
inline constexpr std::string_view hexadecimal = "0123456789abcdef";

} // namespace ombrivane::sandbox
