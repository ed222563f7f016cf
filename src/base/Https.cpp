#include "base/Https.h"

#include <algorithm>

namespace ombrivane {

bool isHttps(std::string_view url) {
    constexpr std::string_view scheme = "https://";
    const std::string_view start = url.substr(0, scheme.size());
    return std::equal(start.begin(), start.end(), scheme.begin(), scheme.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b;
    });
}

} // namespace ombrivane
