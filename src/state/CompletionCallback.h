#pragma once

#include "base/Error.h"
#include "base/Json.h"

#include <functional>
#include <optional>

namespace ombrivane {

/// What the component hands to its host: a dictionary with the boolean key "exit", or an error.
using Dictionary = Json;

/// Called with a dictionary or with an error, on whatever thread reached the entry view; the component does
/// not move the call to the main queue.
using CompletionCallback = std::function<void(std::optional<Dictionary>, std::optional<Error>)>;

} // namespace ombrivane
