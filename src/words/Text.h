#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace ombrivane {

/// A text that the component itself says. Texts of the service are no part of this: they stay as they come.
enum class Text : std::size_t {
#define OMBRIVANE_WORDING(key, english) key,
#include "words/Texts.def"
#undef OMBRIVANE_WORDING
};

/// What there is to know of a text.
struct Wording {
    std::string_view key;     ///< by which a wallet and a translation name it
    std::string_view english; ///< a message pattern of ICU, with named places
};

/// All texts, in the order of the enumeration.
inline constexpr std::array wordings{
#define OMBRIVANE_WORDING(key, english) Wording{#key, english},
#include "words/Texts.def"
#undef OMBRIVANE_WORDING
};

constexpr const Wording& wordingOf(Text text) { return wordings.at(static_cast<std::size_t>(text)); }

/// The text of that key; nothing for a key that does not exist.
constexpr std::optional<Text> textNamed(std::string_view key) {
    for (std::size_t i = 0; i < wordings.size(); ++i) {
        if (wordings.at(i).key == key) return static_cast<Text>(i);
    }
    return std::nullopt;
}

} // namespace ombrivane
