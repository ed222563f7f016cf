#pragma once

#include "support/Date.h"

namespace ombrivane {

/// The return that goes with a departure until the customer chooses another: three days later.
Date defaultReturn(Date departure);

} // namespace ombrivane
