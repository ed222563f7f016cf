#include "richtext/ShownText.h"

#include "base/Utf8.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace ombrivane {
namespace {

/// A layout engine looks for a place to break through the whole of a word, at every width anew.
constexpr std::size_t longestWord = 500;
/// A script stacks four marks on a letter at most; thousands of them keep a layout engine busy for frames.
constexpr std::size_t mostMarks = 8;
constexpr char32_t breakingPlace = 0x200B;
constexpr std::string_view ellipsis = "\u2026";

/// Printable ASCII without an overlong word: most texts.
bool isPlain(std::string_view text) {
    std::size_t word = 0;
    return std::all_of(text.begin(), text.end(), [&word](char c) {
        word = c == ' ' ? 0 : word + 1;
        return c >= 0x20 && c < 0x7F && word <= longestWord;
    });
}

bool endsLine(char32_t c) { return c == '\n' || c == 0x2028 || c == 0x2029; }

bool isHidden(char32_t c) {
    const bool isControl = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    const bool turnsDirection = (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E ||
                                c == 0x200F || c == 0x061C;
    return isControl || turnsDirection;
}

bool isMark(char32_t c) { return (U_GET_GC_MASK(static_cast<UChar32>(c)) & U_GC_M_MASK) != 0; }

} // namespace

std::string shownText(std::string_view text, std::size_t maximumBytes) {
    if (text.size() <= maximumBytes && isPlain(text)) return std::string(text);

    std::string shown;
    std::size_t word = 0;
    std::size_t marks = 0;
    std::size_t fitting = 0;
    for (std::size_t index = 0; index < text.size();) {
        char32_t c = nextCodePoint(text, index);
        if (endsLine(c) || c == '\t') c = ' ';
        if (isHidden(c)) continue;
        marks = isMark(c) ? marks + 1 : 0;
        if (marks > mostMarks) continue;
        if (word == longestWord && c != ' ' && c != breakingPlace) {
            appendCodePoint(shown, breakingPlace);
            word = 0;
        }
        appendCodePoint(shown, c);
        word = c == ' ' || c == breakingPlace ? 0 : word + 1;
        if (shown.size() > maximumBytes) return shown.substr(0, fitting).append(ellipsis);
        // An ellipsis at the end of a long word would be one character more of it.
        if (word < longestWord && shown.size() + ellipsis.size() <= maximumBytes) fitting = shown.size();
    }
    return shown;
}

} // namespace ombrivane
