#include "recording/Pseudonym.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <functional>
#include <random>
#include <string_view>

namespace ombrivane {
namespace {

/// One of `count` that is not `own`.
UChar32 another(std::mt19937_64& dice, UChar32 first, int count, UChar32 own) {
    const auto chosen = first + static_cast<UChar32>(dice() % static_cast<std::uint64_t>(count));
    if (chosen != own) return chosen;
    return first + (chosen - first + 1) % count;
}

UChar32 alike(std::mt19937_64& dice, UChar32 letter, bool beginsNumber) {
    if (u_isdigit(letter)) {
        const UChar32 zero = letter - u_charDigitValue(letter);
        // No number begins to have a leading zero, nor ceases to.
        if (letter == zero && beginsNumber) return letter;
        return zero + another(dice, 1, 9, letter - zero);
    }
    if (!u_isalpha(letter)) return letter;
    if (letter < 0x80) return another(dice, u_isupper(letter) ? 'A' : 'a', 26, letter);
    if (letter >= 0x0905 && letter <= 0x0914) return another(dice, 0x0905, 0x10, letter); // Devanagari vowels
    if (letter >= 0x0915 && letter <= 0x0939)
        return another(dice, 0x0915, 0x25, letter); // Devanagari consonants
    if (letter >= 0x0628 && letter <= 0x063a) return another(dice, 0x0628, 0x13, letter); // Arabic letters
    const UChar32 accented = u_isupper(letter) ? 0xc9 : 0xe9;
    return letter == accented ? accented - 1 : accented;
}

} // namespace

std::string pseudonym(const std::string& text, std::uint64_t salt) {
    std::mt19937_64 dice(std::hash<std::string>()(text) ^ salt);
    const auto letters = icu::UnicodeString::fromUTF8(text);
    icu::UnicodeString others;
    bool isNumber = false;
    for (int at = 0; at < letters.length(); at = letters.moveIndex32(at, 1)) {
        const UChar32 letter = letters.char32At(at);
        others.append(alike(dice, letter, !isNumber));
        isNumber = u_isdigit(letter);
    }
    std::string other;
    return others.toUTF8String(other);
}

std::string otherDay(const std::string& day, std::uint64_t salt) {
    constexpr std::size_t monthEnds = 8; // "yyyy-MM-"
    if (day.size() != monthEnds + 2 || day[4] != '-' || day[7] != '-') return pseudonym(day, salt);
    return day.substr(0, monthEnds) + (day.substr(monthEnds) == "01" ? "02" : "01");
}

} // namespace ombrivane
