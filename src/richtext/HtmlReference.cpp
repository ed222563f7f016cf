#include "richtext/HtmlReference.h"

#include "base/Utf8.h"
#include "richtext/HtmlEntities.h"

#include <algorithm>
#include <array>

namespace ombrivane {
namespace {

constexpr char32_t beyondUnicode = 0x110000;

/// What a reference to one of the control characters from 0x80 on means: its writer took Windows' own numbers
/// for Unicode's.
constexpr std::array<char32_t, 32> windowsCharacters = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::optional<char32_t> digitOf(char c, char32_t base) {
    if (c >= '0' && c <= '9') return static_cast<char32_t>(c - '0');
    if (base == 16 && c >= 'a' && c <= 'f') return static_cast<char32_t>(c - 'a' + 10);
    if (base == 16 && c >= 'A' && c <= 'F') return static_cast<char32_t>(c - 'A' + 10);
    return std::nullopt;
}

bool isNamePart(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

char32_t characterFor(char32_t number) {
    if (number >= 0x80 && number < 0xA0) return windowsCharacters[number - 0x80];
    const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    return number == 0 || number >= beyondUnicode || isSurrogate ? replacementCharacter : number;
}

HtmlReference resolved(char32_t character, std::string_view html, std::size_t length) {
    HtmlReference reference;
    appendCodePoint(reference.text, character);
    reference.length = length + (html.substr(length).starts_with(';') ? 1 : 0);
    return reference;
}

std::optional<HtmlReference> byNumber(std::string_view html) {
    const bool isHex = html.starts_with("&#x") || html.starts_with("&#X");
    const char32_t base = isHex ? 16 : 10;
    const std::size_t start = isHex ? 3 : 2;
    std::size_t at = start;
    char32_t number = 0;
    for (; at < html.size(); ++at) {
        const auto digit = digitOf(html[at], base);
        if (!digit) break;
        number = std::min<char32_t>(number * base + *digit, beyondUnicode);
    }
    if (at == start) return std::nullopt;
    return resolved(characterFor(number), html, at);
}

} // namespace

std::optional<HtmlReference> HtmlReference::at(std::string_view html) {
    if (html.starts_with("&#")) return byNumber(html);
    // A name that goes on behind the longest known one is no known one.
    const std::string_view candidate = html.substr(1, longestHtmlEntity + 1);
    const auto end = std::find_if_not(candidate.begin(), candidate.end(), isNamePart);
    const auto length = static_cast<std::size_t>(end - candidate.begin());
    const auto character = htmlEntity(candidate.substr(0, length));
    if (!character) return std::nullopt;
    return resolved(*character, html, 1 + length);
}

} // namespace ombrivane
