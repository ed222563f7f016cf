#pragma once

#include "services/Frame.h"

#include <functional>
#include <optional>
#include <string>

namespace ombrivane {

/// Sends a restriction request and reads its answer, which tells `hasRestrictions` and `message` beside
/// `success`. Completes with the HTML text of the fare rules, possibly empty, or with nothing when there are
/// none.
void sendForRestrictions(std::function<std::optional<std::string>()> body,
                         const Completion<std::optional<std::string>>& completion);

} // namespace ombrivane
