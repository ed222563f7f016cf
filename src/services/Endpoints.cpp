#include "services/Endpoints.h"

#include "base/SharedInstance.h"
#include "services/ServiceHosts.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

std::string chooseBase() { return ServiceHosts::current().of(AppState::shared().environment.get()); }

} // namespace

Endpoints::Endpoints() : baseURL(chooseBase()) {}

std::string Endpoints::address(std::string_view endpoint) const {
    return baseURL + "/api/b2b/v2" + std::string(endpoint);
}

bool Endpoints::areFixed() { return SharedInstance<Endpoints>::isMade(); }

const Endpoints& Endpoints::shared() { return SharedInstance<Endpoints>::get(); }

} // namespace ombrivane
