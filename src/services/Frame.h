#pragma once

#include "base/Completion.h"
#include "base/ErrorDomains.h"
#include "events/Event.h"
#include "platform/HttpRequest.h"
#include "platform/Limits.h"
#include "services/Envelope.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane {

/// What a client states of one request; the frame does the rest.
struct ServiceCall {
    std::string_view endpoint; ///< one of `endpoint`
    std::string query;         ///< follows it in the address as it stands
    std::string method = "POST";
    /// Asked for when the request is otherwise built. No text: the request goes out without a body. An
    /// `Error` that it throws ends the call before anything is sent.
    std::function<std::optional<std::string>()> body = [] { return std::nullopt; };
    /// In place of `body` for a long one, see `HttpRequest::pieces`. Asked for in the platform's background.
    std::function<std::vector<std::string>()> pieces;
    std::string contentType = "application/json";
    bool bearerToken = true;
    std::string failureDomain = errorDomain::service;
    std::chrono::seconds wholeInterval = limits::request;
    std::size_t answerBytes = limits::recordBytes;
    std::size_t structureBytes = limits::structureBytes; ///< what reading may take beyond the answer's bytes
};

/// Tells the diagnostics of a call that failed; the frame does, for every call that goes through it. Any
/// thread.
/// @param error absent where the network had neither an answer nor an error
void reportFailedCall(std::string_view endpoint, const std::optional<Error>& error);

/// A call under way, for the host's log of requests.
class CallRecord {
public:
    explicit CallRecord(std::string_view endpoint);
    /// The network is done with it. Any thread.
    void answered(const HttpAnswer& answer);
    /// It is over, well with nothing in `error`; a failure is told to the diagnostics too. Any thread.
    void ended(bool failed, const std::optional<Error>& error);

private:
    EndedCall call_;
    std::chrono::milliseconds began_;
};

/// A screen has come up whose control may send a call: the connection for it is opened while the customer is
/// still at it. Each call that is sent expects the one after it by itself. Main thread.
void expectCall();

namespace detail {

/// Goes through the frame: the online check, the address, the request. `answered` hears of the answer on a
/// thread of the network, or of why nothing was sent on the one that would have sent it.
void perform(const ServiceCall& call, HttpCompletion answered);

/// Hands the envelope of a success to `read`. @return why there is no success, or nothing also where the
/// network has neither bytes nor an error
std::optional<Error> readAnswer(HttpAnswer answer, std::size_t structureBytes,
                                const std::string& failureDomain,
                                const std::function<void(const Envelope&)>& read);

} // namespace detail

/// Sends `call` once and completes with what `read` makes of a successful answer, or with an empty result and
/// an error. Call on the main thread; completes on a thread of the network, or at once when nothing could be
/// sent.
template <class Result>
void send(const ServiceCall& call, std::function<Result(const Envelope&)> read,
          const Completion<Result>& completion) {
    detail::perform(call,
                    [read = std::move(read),
                     completion,
                     record = CallRecord(call.endpoint),
                     domain = call.failureDomain,
                     room = call.structureBytes](HttpAnswer answer) mutable {
                        record.answered(answer);
                        std::optional<Result> result;
                        auto error = detail::readAnswer(
                            std::move(answer), room, domain, [&](const Envelope& envelope) {
                                result.emplace(read(envelope));
                            });
                        const bool failed = error || !result;
                        record.ended(failed, error);
                        if (!failed) return completion(*std::move(result));
                        completion(Result(), std::move(error));
                    });
}

} // namespace ombrivane
