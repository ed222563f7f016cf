#pragma once

#include <nlohmann/json.hpp>

namespace ombrivane {

/// JSON that keeps the order of its keys: what is written to the service and handed to the host.
using Json = nlohmann::ordered_json;

} // namespace ombrivane
