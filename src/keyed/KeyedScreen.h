#pragma once

#include "keyed/Keyed.h"
#include "keyed/Screen.h"

namespace ombrivane {

/// A screen held in a field is read by its name and cannot be set.
template <> struct Keyed<std::shared_ptr<Screen>> {
    static Json toJson(const std::shared_ptr<Screen>& screen) {
        return screen ? Json(std::string(screen->name())) : Json();
    }
    static std::shared_ptr<Screen> fromJson(const Json& /*json*/) {
        throw KeyedError("a screen cannot be set");
    }
};

} // namespace ombrivane
