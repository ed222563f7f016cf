#include "services/ServiceHosts.h"

#include <mutex>
#include <optional>

namespace ombrivane {
namespace {

std::mutex mutex;

std::optional<ServiceHosts>& chosen() {
    static std::optional<ServiceHosts> instance;
    return instance;
}

} // namespace

ServiceHosts ServiceHosts::current() {
    const std::lock_guard lock(mutex);
    return chosen().value_or(ServiceHosts{OMBRIVANE_PRODUCTION_HOST, OMBRIVANE_TEST_HOST});
}

void ServiceHosts::use(ServiceHosts hosts) {
    const std::lock_guard lock(mutex);
    chosen() = std::move(hosts);
}

} // namespace ombrivane
