#include "state/AppState.h"

#include "base/SharedInstance.h"

namespace ombrivane {

AppState& AppState::shared() { return SharedInstance<AppState>::get(); }

void AppState::update(std::string newAccessToken, std::string newUserType,
                      std::optional<double> newWalletBalance, std::optional<std::string> newPhone) {
    accessToken = std::move(newAccessToken);
    userType = std::move(newUserType);
    walletBalance = newWalletBalance;
    phone = std::move(newPhone);
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
