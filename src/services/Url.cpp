#include "services/Url.h"

#include <algorithm>
#include <cctype>

namespace ombrivane {
namespace {

bool isAlphanumeric(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 &&
           static_cast<unsigned char>(character) < 128;
}

bool isAllowed(char character) {
    constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=%";
    return isAlphanumeric(character) || marks.find(character) != std::string_view::npos;
}

bool escapesAreWhole(std::string_view text) {
    for (auto at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
        const auto digits = text.substr(at + 1, 2);
        const bool whole =
            digits.size() == 2 && std::all_of(digits.begin(), digits.end(), [](unsigned char digit) {
                return std::isxdigit(digit) != 0;
            });
        if (!whole) return false;
    }
    return true;
}

bool isScheme(std::string_view text) {
    return !text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) != 0 &&
           std::all_of(text.begin(), text.end(), [](char character) {
               return isAlphanumeric(character) || character == '+' || character == '-' || character == '.';
           });
}

} // namespace

bool isUrl(std::string_view text) {
    const auto colon = text.find(':');
    if (colon == std::string_view::npos || colon + 1 == text.size()) return false;
    return isScheme(text.substr(0, colon)) && std::all_of(text.begin(), text.end(), isAllowed) &&
           escapesAreWhole(text);
}

} // namespace ombrivane
