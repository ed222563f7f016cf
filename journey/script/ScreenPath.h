#pragma once

#include "keyed/Navigator.h"

#include <memory>
#include <string>

namespace ombrivane::journey {

/// What a path leads to, with the screen that keeps it alive.
struct PathTarget {
    std::shared_ptr<Screen> screen;
    Member* member = nullptr;
};

/// Follows a path such as `Screen.key`, `Screen.model.key` or `Screen.rows[3].key`. Without a screen's name
/// it starts at the topmost screen. `model` stands for the screen's own model; a key that the screen does not
/// have is looked for in its models and in the screens shown inside of it.
/// @throws KeyedError when it leads nowhere
PathTarget follow(const Navigator& navigator, const std::string& path);

/// The whole stack, the topmost screen last: names, fields, derived values, actions, models, rows and parts.
Json describe(const Navigator& navigator);

} // namespace ombrivane::journey
