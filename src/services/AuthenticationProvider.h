#pragma once

#include "base/Completion.h"
#include "records/Authentication.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Fetches the access token with the host's credentials.
class AuthenticationProvider {
public:
    /// @param clientId sent as `username`
    /// @param clientSecret sent as `password`; never part of an error
    /// @param userType "customer" when absent
    void authenticate(const std::string& clientId, const std::string& clientSecret,
                      const std::optional<std::string>& userType,
                      const Completion<std::optional<Authentication>>& completion) const;
};

} // namespace ombrivane
