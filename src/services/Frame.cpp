#include "services/Frame.h"

#include "base/Attempted.h"
#include "base/Https.h"
#include "base/Url.h"
#include "events/HostEvents.h"
#include "platform/ElapsedTime.h"
#include "platform/Platform.h"
#include "services/CustomError.h"
#include "services/Endpoints.h"
#include "services/ErrorWords.h"
#include "services/Reachability.h"
#include "state/AppState.h"
#include "words/Words.h"

#include <string_view>

namespace ombrivane {
namespace {

/// A line end in a header could begin a second request. @throws Error
void requireOneLine(const std::string& name, const std::string& value) {
    using namespace std::string_view_literals;
    if (value.find_first_of("\r\n\0"sv) == std::string::npos) return;
    throw Error{errorDomain::encoding, 0, said(Text::errorRequestNotWritten), name + ": more than one line"};
}

HttpRequest requestFor(const ServiceCall& call, std::string url) {
    HttpRequest request;
    request.url = std::move(url);
    request.timeoutInterval = limits::idle;
    request.wholeInterval = call.wholeInterval;
    request.answerBytes = call.answerBytes;
    request.method = call.method;
    request.headers.emplace_back("Content-Type", call.contentType);
    if (call.bearerToken) {
        request.headers.emplace_back("Authorization",
                                     "Bearer " + AppState::shared().credentials().accessToken);
    }
    for (const auto& [name, value] : request.headers)
        requireOneLine(name, value);
    if (!call.pieces) request.body = call.body();
    return request;
}

HttpAnswer failed(Error error) { return {std::nullopt, std::move(error)}; }

void sendOn(Network& network, HttpRequest request, HttpCompletion answered) {
    const std::string next = request.url;
    network.send(std::move(request), std::move(answered));
    network.expect(next); // a key typed follows another, an upload its reservation
}

using Pieces = std::function<std::vector<std::string>()>;

/// The screen goes on meanwhile, where the platform has a background.
void sendWritten(const Pieces& pieces, HttpRequest request, HttpCompletion answered) {
    auto step = [pieces,
                 network = platform().network,
                 request = std::move(request),
                 answered = std::move(answered)]() mutable {
        const auto failure = attempted([&] { request.pieces = pieces(); });
        if (failure) return answered(failed(*failure));
        sendOn(*network, std::move(request), std::move(answered));
    };
    if (const auto background = platform().background) return background->async(std::move(step));
    step();
}

/// What is told where the network has neither an answer nor an error.
const Error& nothing() {
    static const auto& nothing = *new Error{errorDomain::network, 0, "", "neither an answer nor an error"};
    return nothing;
}

} // namespace

void reportFailedCall(std::string_view endpoint, const std::optional<Error>& error) {
    const Error& told = error ? *error : nothing();
    platform().diagnostics->callFailed({endpoint, told.domain, told.code, told.developerDescription});
}

CallRecord::CallRecord(std::string_view endpoint) : began_(elapsedTime()) { call_.endpoint = endpoint; }

void CallRecord::answered(const HttpAnswer& answer) {
    call_.took = elapsedTime() - began_;
    call_.status = answer.status;
    call_.bytes = answer.data ? answer.data->size() : 0;
}

void CallRecord::ended(bool failed, const std::optional<Error>& error) {
    if (failed) {
        reportFailedCall(call_.endpoint, error);
        call_.error = kindOf(error ? *error : nothing());
    }
    HostEvents::shared().tell(call_);
}

void expectCall() {
    // Without a token nothing is asked yet, and the host of the service may not be settled.
    if (!platform().network || AppState::shared().accessToken->empty()) return;
    platform().network->expect(Endpoints::shared().address(""));
}

void detail::perform(const ServiceCall& call, HttpCompletion answered) {
    // A host that ends its network is as good as offline.
    if (!platform().network || !Reachability::isConnectedToNetwork()) {
        return answered(failed(makeError(CustomError::noInternetConnection)));
    }
    std::string url = Endpoints::shared().address(call.endpoint) + call.query;
    if (!isUrl(url) || !isHttps(url)) return answered(failed(makeError(CustomError::invalidUrl)));
    HttpRequest request;
    auto failure = attempted([&] { request = requestFor(call, std::move(url)); });
    if (failure) return answered(failed(*std::move(failure)));
    if (call.pieces) return sendWritten(call.pieces, std::move(request), std::move(answered));
    sendOn(*platform().network, std::move(request), std::move(answered));
}

std::optional<Error> detail::readAnswer(HttpAnswer answer, std::size_t structureBytes,
                                        const std::string& failureDomain,
                                        const std::function<void(const Envelope&)>& read) {
    // The response itself is not looked at: a status says less than the envelope.
    if (answer.error) return inCustomersWords(*std::move(answer.error));
    if (!answer.data) return std::nullopt;
    std::optional<Error> refusal;
    auto failure = attempted([&] {
        const Envelope envelope(*std::move(answer.data), structureBytes);
        if (envelope.success()) {
            read(envelope);
        } else {
            refusal = Error{failureDomain, 0, envelope.failureMessage()};
        }
        envelope.checkUnread();
    });
    return failure ? inCustomersWords(*std::move(failure)) : refusal;
}

} // namespace ombrivane
