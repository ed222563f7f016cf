#include "base/Url.h"

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

std::string hostOf(std::string_view url) {
    const auto slashes = url.find("://");
    if (slashes == std::string_view::npos) return "";
    std::string_view place = url.substr(slashes + 3);
    place = place.substr(0, place.find_first_of("/?#"));
    place.remove_prefix(place.rfind('@') + 1); // of nothing found, the sum is 0
    if (place.starts_with('[')) return std::string(place.substr(1, place.find(']') - 1));
    return std::string(place.substr(0, place.find(':')));
}

} // namespace ombrivane
