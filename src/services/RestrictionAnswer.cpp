#include "services/RestrictionAnswer.h"

#include "services/Endpoints.h"

namespace ombrivane {

void sendForRestrictions(std::function<std::optional<std::string>()> body,
                         const Completion<std::optional<std::string>>& completion) {
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::restrictions;
    call.body = std::move(body);
    send<std::optional<std::string>>(
        call,
        [](const Envelope& envelope) -> std::optional<std::string> {
            if (!envelope.topLevelFlag("hasRestrictions")) return std::nullopt;
            return envelope.topLevelText("message");
        },
        completion);
}

} // namespace ombrivane
