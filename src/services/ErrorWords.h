#pragma once

#include "base/Error.h"

namespace ombrivane {

/// `error` in the customer's language. What the booking service says stays as it comes. Any thread.
Error inCustomersWords(Error error);

} // namespace ombrivane
