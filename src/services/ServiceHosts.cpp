#include "services/ServiceHosts.h"

#include <mutex>
#include <optional>

namespace ombrivane {
namespace {

std::mutex mutex;

constexpr const char* thisDevice = "https://localhost";

std::optional<ServiceHosts>& chosen() {
    static std::optional<ServiceHosts> instance;
    return instance;
}

} // namespace

ServiceHosts ServiceHosts::current() {
    const std::lock_guard lock(mutex);
    return chosen().value_or(ServiceHosts{OMBRIVANE_PRODUCTION_HOST, OMBRIVANE_TEST_HOST});
}

bool ServiceHosts::areOfNobody() {
    const std::lock_guard lock(mutex);
    const ServiceHosts built{OMBRIVANE_PRODUCTION_HOST, OMBRIVANE_TEST_HOST};
    return !chosen() && (built.production.starts_with(thisDevice) || built.test.starts_with(thisDevice));
}

void ServiceHosts::use(ServiceHosts hosts) {
    const std::lock_guard lock(mutex);
    // The paths of the service begin with a slash.
    for (std::string* host : {&hosts.production, &hosts.test})
        host->erase(host->find_last_not_of('/') + 1);
    chosen() = std::move(hosts);
}

} // namespace ombrivane
