#include "services/Reachability.h"

#include "base/Url.h"
#include "platform/Platform.h"
#include "services/ServiceHosts.h"
#include "state/AppState.h"

namespace ombrivane {

bool Reachability::isConnectedToNetwork() {
    const auto hosts = ServiceHosts::current();
    const auto flags = platform().reachability->flags(hostOf(hosts.of(AppState::shared().environment.get())));
    return flags && (*flags & reachableFlag) != 0 && (*flags & connectionRequiredFlag) == 0;
}

} // namespace ombrivane
