#include "Matching.h"

#include <algorithm>

namespace ombrivane::journey {

bool matches(const Json& found, const Json& wanted) {
    if (found.type() != wanted.type()) return found == wanted; // 1 and 1.0 are one number
    if (wanted.is_array())
        return std::equal(found.begin(), found.end(), wanted.begin(), wanted.end(), matches);
    if (!wanted.is_object()) return found == wanted;
    return std::all_of(wanted.items().begin(), wanted.items().end(), [&](const auto& member) {
        const auto at = found.find(member.key());
        return at != found.end() && matches(*at, member.value());
    });
}

} // namespace ombrivane::journey
