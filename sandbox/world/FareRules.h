// The restrictions of a fare as the HTML text that a customer has to read.
#pragma once

#include "sandbox/world/Offers.h"

#include <optional>
#include <string>

namespace ombrivane::sandbox {

/// None for every sixth offer, which has no restrictions.
std::optional<std::string> fareRules(const Offer& offer);

} // namespace ombrivane::sandbox
