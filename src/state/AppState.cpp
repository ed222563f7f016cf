#include "state/AppState.h"

#include "base/SharedInstance.h"

#include <utility>

namespace ombrivane {

AppState& AppState::shared() { return SharedInstance<AppState>::get(); }

void AppState::update(std::string newAccessToken, std::string newUserType,
                      std::optional<double> newWalletBalance, std::optional<std::string> newPhone) {
    accessToken = std::move(newAccessToken);
    userType = std::move(newUserType);
    walletBalance = newWalletBalance;
    phone = std::move(newPhone);
    forgetsCredentials_ = false;
}

void AppState::forget() {
    const std::string token = accessToken;
    const std::string type = userType;
    const AppState empty;
    for (const Member* member : empty.fields.members())
        fields.find(member->key())->write(member->read());
    if (credentials_.expired()) return;
    accessToken = token;
    userType = type;
    forgetsCredentials_ = true;
}

std::shared_ptr<const void> AppState::keepCredentials() {
    auto kept = credentials_.lock();
    if (kept) return kept;
    kept = std::shared_ptr<const void>(this, [](const void* /*state*/) {
        auto& state = AppState::shared();
        if (!std::exchange(state.forgetsCredentials_, false)) return;
        state.accessToken = "";
        state.userType = "";
    });
    credentials_ = kept;
    return kept;
}

void AppState::resetNavigation() {
    onewayOriginRootViewActive = false;
    onewayDestinationRootViewActive = false;
    roundtripOriginRootViewActive = false;
    roundtripDestinationRootViewActive = false;
    onewaySearchRootViewActive = false;
    roundtripSearchRootViewActive = false;
    domesticSearchRootViewActive = false;
}

} // namespace ombrivane
