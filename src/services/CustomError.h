#pragma once

#include "base/Error.h"
#include "base/ErrorDomains.h"

#include <optional>
#include <string>

namespace ombrivane {

/// The localized description; never absent.
std::optional<std::string> errorDescription(CustomError error);

/// The failure as it travels through completions.
Error makeError(CustomError error);

/// Whether `error` is the one made from `custom`.
bool is(const std::optional<Error>& error, CustomError custom);

} // namespace ombrivane
