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
}

Credentials AppState::credentials() const {
    if (sendingAs_ != nullptr) return *sendingAs_;
    return {accessToken, userType};
}

SendingAs::SendingAs(const Credentials& credentials) :
    before_(std::exchange(AppState::shared().sendingAs_, &credentials)) {}

SendingAs::~SendingAs() { AppState::shared().sendingAs_ = before_; }

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
