#include "services/Frame.h"

#include "platform/Platform.h"
#include "records/DecodeError.h"
#include "services/CustomError.h"
#include "services/Endpoints.h"
#include "services/Reachability.h"
#include "services/Url.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

HttpRequest requestFor(const ServiceCall& call, std::string url) {
    HttpRequest request;
    request.url = std::move(url);
    request.timeoutInterval = limits::idle;
    request.wholeInterval = call.wholeInterval;
    request.method = call.method;
    request.headers.emplace_back("Content-Type", call.contentType);
    if (call.bearerToken) {
        request.headers.emplace_back("Authorization", "Bearer " + AppState::shared().accessToken.get());
    }
    request.body = call.body();
    return request;
}

Error refusal(const std::string& domain, std::string message) { return {domain, 0, std::move(message)}; }

} // namespace

void reportFailedCall(std::string_view endpoint, const Error& error) {
    platform().diagnostics->callFailed({endpoint, error.domain, error.code, error.developerDescription});
}

void detail::perform(const ServiceCall& call, std::function<void(const Envelope&)> answered,
                     std::function<void(std::optional<Error>)> told) {
    const auto failed = [endpoint = call.endpoint, told = std::move(told)](std::optional<Error> error) {
        static const Error nothing{errorDomain::network, 0, "", "neither an answer nor an error"};
        reportFailedCall(endpoint, error.value_or(nothing));
        told(std::move(error));
    };
    if (!Reachability::isConnectedToNetwork()) return failed(makeError(CustomError::noInternetConnection));
    std::string url = Endpoints::shared().address(call.endpoint) + call.query;
    if (!isUrl(url)) return failed(makeError(CustomError::invalidUrl));
    std::optional<HttpRequest> request;
    try {
        request = requestFor(call, std::move(url));
    } catch (const Error& error) {
        return failed(error);
    }

    platform().network->send(
        std::move(*request),
        [answered = std::move(answered), failed, domain = call.failureDomain](HttpAnswer answer) {
            // The response itself is not looked at: a status says less than the
            // envelope.
            if (!answer.data || answer.error) return failed(std::move(answer.error));
            std::optional<Error> failure;
            try {
                const Envelope envelope(*answer.data);
                if (envelope.success()) return answered(envelope);
                failure = refusal(domain, envelope.failureMessage());
            } catch (const DecodeError& error) {
                failure = error.error();
            }
            failed(std::move(failure));
        });
}

} // namespace ombrivane
