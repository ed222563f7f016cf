#pragma once

#include "keyed/Field.h"

#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

/// What the session learnt from the host and the token service, the nationality of the search, and the flags
/// that keep the levels of the search on the stack. One instance for the life of the process. Main thread;
/// clients read the token and the user type on their caller's thread.
class AppState {
public:
    static AppState& shared();

    /// Takes over what a finished bootstrap brought.
    void update(std::string accessToken, std::string userType, std::optional<double> walletBalance,
                std::optional<std::string> phone);

    /// Another customer may come: everything as at first. Token and user type stay as long as somebody keeps
    /// them, and go then, unless a bootstrap has brought others.
    void forget();
    /// Keeps what requests are sent with while the result lives: a reservation is under way. Main thread, the
    /// result's end too.
    std::shared_ptr<const void> keepCredentials();

    /// Back to the search form: clears the seven flags, the shallow selection screens first.
    void resetNavigation();

    Fields fields;
    Published<std::string> accessToken{fields, "accessToken"};
    Published<std::string> userType{fields, "userType"};
    Published<std::optional<double>> walletBalance{fields, "walletBalance"};
    Published<std::optional<std::string>> phone{fields, "phone"};
    Published<bool> onewayOriginRootViewActive{fields, "onewayOriginRootViewActive"};
    Published<bool> onewayDestinationRootViewActive{fields, "onewayDestinationRootViewActive"};
    Published<bool> onewaySearchRootViewActive{fields, "onewaySearchRootViewActive"};
    Published<bool> roundtripOriginRootViewActive{fields, "roundtripOriginRootViewActive"};
    Published<bool> roundtripDestinationRootViewActive{fields, "roundtripDestinationRootViewActive"};
    Published<bool> roundtripSearchRootViewActive{fields, "roundtripSearchRootViewActive"};
    Published<bool> domesticSearchRootViewActive{fields, "domesticSearchRootViewActive"};
    Published<std::string> nationalityText{fields, "nationalityText", "Nepalese"};
    Published<std::string> nationality{fields, "nationality", "NP"};
    Published<std::string> environment{fields, "environment"};

private:
    std::weak_ptr<const void> credentials_;
    bool forgetsCredentials_ = false; ///< once nobody keeps them any more
};

} // namespace ombrivane
