// Who may speak to the service, and the tokens that it has given out.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace ombrivane::sandbox {

class ClientAccounts {
public:
    ClientAccounts(std::uint64_t seed, std::map<std::string, std::string> secrets);

    /// A new token for that client. Throws `Refusal` "Invalid credentials.".
    std::string issueToken(const std::string& client, const std::string& secret, const std::string& userType);

    /// The user type for which the bearer token of an "Authorization" header was issued. Throws `Refusal`
    /// "Unauthenticated.".
    [[nodiscard]] const std::string& userTypeOf(const std::string& authorization) const;

    /// Forgets all tokens; the next ones are again those of a fresh start.
    void clear();

private:
    std::uint64_t seed_;
    std::map<std::string, std::string> secrets_;
    std::map<std::string, std::string> userTypes_; ///< by token
};

} // namespace ombrivane::sandbox
