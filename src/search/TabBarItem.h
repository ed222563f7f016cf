#pragma once

#include "keyed/Keyed.h"
#include "words/Text.h"

#include <array>

namespace ombrivane {

/// The tabs of the search, in their order.
enum class TabBarItem { oneWay, roundTrip, multiCity };

struct TabBarWording {
    TabBarItem tab;
    const char* key;
    Text label;
};

inline constexpr std::array<TabBarWording, 3> tabBarWordings{{
    {TabBarItem::oneWay, "oneWay", Text::tabOneWay},
    {TabBarItem::roundTrip, "roundTrip", Text::tabRoundTrip},
    {TabBarItem::multiCity, "multiCity", Text::tabMultiCity},
}};

template <> struct Keyed<TabBarItem> {
    static Json toJson(TabBarItem tab) { return tabBarWordings.at(static_cast<std::size_t>(tab)).key; }
    static TabBarItem fromJson(const Json& json) {
        for (const auto& wording : tabBarWordings) {
            if (json.is_string() && json.get<std::string>() == wording.key) return wording.tab;
        }
        throw KeyedError("wants \"oneWay\", \"roundTrip\" or \"multiCity\"");
    }
};

} // namespace ombrivane
