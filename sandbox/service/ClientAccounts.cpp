#include "sandbox/service/ClientAccounts.h"

#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Dice.h"

#include <fmt/format.h>

#include <utility>

namespace ombrivane::sandbox {

ClientAccounts::ClientAccounts(std::uint64_t seed, std::map<std::string, std::string> secrets) :
    seed_(seed), secrets_(std::move(secrets)) {}

std::string ClientAccounts::issueToken(const std::string& client, const std::string& secret,
                                       const std::string& userType) {
    const auto known = secrets_.find(client);
    if (known == secrets_.end() || known->second != secret) throw Refusal("Invalid credentials.", 401);
    Dice dice(seed_, fmt::format("token {}", userTypes_.size()));
    std::string token = dice.letters(48, hexadecimal);
    userTypes_[token] = userType;
    return token;
}

const std::string& ClientAccounts::userTypeOf(const std::string& authorization) const {
    constexpr std::string_view scheme = "Bearer ";
    if (authorization.compare(0, scheme.size(), scheme) != 0) throw Refusal("Unauthenticated.", 401);
    const auto known = userTypes_.find(authorization.substr(scheme.size()));
    if (known == userTypes_.end()) throw Refusal("Unauthenticated.", 401);
    return known->second;
}

void ClientAccounts::clear() { userTypes_.clear(); }

} // namespace ombrivane::sandbox
