#include "services/Reachability.h"

#include "platform/Platform.h"

namespace ombrivane {

bool Reachability::isConnectedToNetwork() {
    const auto flags = platform().reachability->flags();
    return flags && (*flags & reachableFlag) != 0 && (*flags & connectionRequiredFlag) == 0;
}

} // namespace ombrivane
