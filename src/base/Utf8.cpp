#include "base/Utf8.h"

#include <unicode/utf8.h>

namespace ombrivane {

char32_t nextCodePoint(std::string_view text, std::size_t& index) {
    UChar32 codePoint = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // within ICU's macro
    U8_NEXT(text.data(), index, text.size(), codePoint);
#pragma GCC diagnostic pop
    return codePoint < 0 ? replacementCharacter : static_cast<char32_t>(codePoint);
}

void appendCodePoint(std::string& text, char32_t codePoint) {
    char bytes[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, codePoint);
    text.append(bytes, length);
}

} // namespace ombrivane
