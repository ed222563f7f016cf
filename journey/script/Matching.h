#pragma once

#include "base/Json.h"

namespace ombrivane::journey {

/// Whether `found` has all that `wanted` tells: objects may hold more members, at any depth; lists have as
/// many elements, each of which matches; all else is equal.
bool matches(const Json& found, const Json& wanted);

} // namespace ombrivane::journey
