#include "records/JsonScanner.h"

#include "records/DecodeError.h"

#include <array>
#include <cstring>

namespace ombrivane {
namespace {

[[noreturn]] void refuse() { throw DecodeError("is no JSON"); }

bool isSpace(char character) {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// Which characters lead into or out of a container or into a string.
constexpr auto leading = [] {
    std::array<bool, 256> marks{};
    for (const char mark : {'"', '{', '}', '[', ']'})
        marks[static_cast<unsigned char>(mark)] = true;
    return marks;
}();

/// Whether the quote at `quote` is part of the string that began before `begin`.
bool isEscaped(const char* begin, const char* quote) {
    const char* first = quote;
    while (first != begin && first[-1] == '\\')
        --first;
    return (quote - first) % 2 != 0;
}

} // namespace

void JsonScanner::passSpace() {
    while (at_ != end_ && isSpace(*at_))
        ++at_;
}

bool JsonScanner::isAt(char mark) {
    passSpace();
    return at_ != end_ && *at_ == mark;
}

bool JsonScanner::take(char mark) {
    if (!isAt(mark)) return false;
    ++at_;
    return true;
}

void JsonScanner::expect(char mark) {
    if (!take(mark)) refuse();
}

void JsonScanner::expectEnd() {
    passSpace();
    if (at_ != end_) refuse();
}

std::string_view JsonScanner::string() {
    if (!isAt('"')) refuse();
    const char* const begin = at_;
    passString();
    return {begin, static_cast<std::size_t>(at_ - begin)};
}

std::string_view JsonScanner::value() {
    passSpace();
    const char* const begin = at_;
    if (at_ == end_) refuse();
    if (*at_ == '"') {
        passString();
    } else if (*at_ == '{' || *at_ == '[') {
        passContainer();
    } else {
        passScalar();
    }
    return {begin, static_cast<std::size_t>(at_ - begin)};
}

void JsonScanner::passString() {
    const char* const begin = at_ + 1;
    const char* from = begin;
    while (true) {
        const auto* quote =
            static_cast<const char*>(std::memchr(from, '"', static_cast<std::size_t>(end_ - from)));
        if (quote == nullptr) refuse();
        from = quote + 1;
        if (!isEscaped(begin, quote)) break;
    }
    at_ = from;
}

void JsonScanner::passContainer() {
    std::size_t depth = 0;
    while (at_ != end_) {
        const char character = *at_;
        if (!leading[static_cast<unsigned char>(character)]) {
            ++at_;
        } else if (character == '"') {
            passString();
        } else {
            ++at_;
            if (character == '{' || character == '[') {
                ++depth;
            } else if (--depth == 0) {
                return;
            }
        }
    }
    refuse();
}

void JsonScanner::passScalar() {
    const char* const begin = at_;
    while (at_ != end_ && !isSpace(*at_) && *at_ != ',' && *at_ != ']' && *at_ != '}')
        ++at_;
    if (at_ == begin) refuse();
}

} // namespace ombrivane
