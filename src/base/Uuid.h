#pragma once

#include "base/Api.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// A 128-bit identity. A field that holds a fresh random one holds "nothing", since it equals no other.
class OMBRIVANE_API Uuid {
public:
    /// A fresh random identity (version 4). Any thread.
    static Uuid random();

    /// Reads the 36-character text form, either letter case; nothing when `text` has another form.
    static std::optional<Uuid> parse(std::string_view text);

    /// The 36-character form in upper case.
    std::string text() const;

    /// By their bytes.
    bool operator==(const Uuid&) const = default;

private:
    std::array<std::uint8_t, 16> bytes_{};

    friend struct std::hash<Uuid>;
};

} // namespace ombrivane

/// @cond
template <> struct OMBRIVANE_API std::hash<ombrivane::Uuid> {
    std::size_t operator()(const ombrivane::Uuid& uuid) const noexcept;
};
/// @endcond
