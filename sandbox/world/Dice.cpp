#include "sandbox/world/Dice.h"

namespace ombrivane::sandbox {

namespace {

/// The finalizer of SplitMix64.
std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

} // namespace

Dice::Dice(std::uint64_t seed, std::string_view subject) : state_(mixed(seed + 0x9E3779B97F4A7C15U)) {
    for (char letter : subject)
        state_ = mixed(state_ ^ static_cast<unsigned char>(letter)) + 0x9E3779B97F4A7C15U;
}

std::uint64_t Dice::next() {
    state_ += 0x9E3779B97F4A7C15U;
    return mixed(state_);
}

std::size_t Dice::below(std::size_t count) { return static_cast<std::size_t>(next() % count); }

int Dice::between(int least, int most) {
    return least + static_cast<int>(below(static_cast<std::size_t>(most - least + 1)));
}

std::string Dice::letters(std::size_t count, std::string_view alphabet) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += alphabet[below(alphabet.size())];
    return text;
}

} // namespace ombrivane::sandbox
