#include "services/AuthenticationProvider.h"

#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"

namespace ombrivane {

void AuthenticationProvider::authenticate(const std::string& clientId, const std::string& clientSecret,
                                          const std::optional<std::string>& userType,
                                          const Completion<std::optional<Authentication>>& completion) const {
    ServiceCall call;
    call.endpoint = endpoint::token;
    call.bearerToken = false;
    call.failureDomain = errorDomain::authentication;
    call.body = [&] {
        return Body()
            .add("user_type", userType.value_or("customer"))
            .add("username", clientId)
            .add("password", clientSecret)
            .serialised();
    };
    send<std::optional<Authentication>>(
        call, [](const Envelope& envelope) { return envelope.record<Authentication>(); }, completion);
}

} // namespace ombrivane
