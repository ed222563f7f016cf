#pragma once

#include "keyed/Field.h"
#include "state/Credentials.h"

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

    /// What requests are sent with: what `SendingAs` says, else the fields below.
    Credentials credentials() const;

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
    friend class SendingAs;

    const Credentials* sendingAs_ = nullptr;
};

} // namespace ombrivane
