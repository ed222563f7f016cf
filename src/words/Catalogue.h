#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ombrivane {

/// A translation that is compiled in, as gettext's compiler leaves it.
struct Catalogue {
    std::string_view language;           ///< as its file is called: "ne"
    std::span<const unsigned char> data; ///< a .mo file
};

/// All of them, in the order of their languages.
std::span<const Catalogue> catalogues();

/// The translation of `english` under `key`; empty where the catalogue has none.
std::string translated(const Catalogue& catalogue, std::string_view key, std::string_view english);

} // namespace ombrivane
