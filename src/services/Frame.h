#pragma once

#include "platform/Limits.h"
#include "services/Envelope.h"
#include "support/Completion.h"
#include "support/ErrorDomains.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// What a client states of one request; the frame does the rest.
struct ServiceCall {
    std::string_view endpoint; ///< one of `endpoint`
    std::string query;         ///< follows it in the address as it stands
    std::string method = "POST";
    /// Asked for when the request is otherwise built. No text: the request goes out without a body. An
    /// `Error` that it throws ends the call before anything is sent.
    std::function<std::optional<std::string>()> body = [] { return std::nullopt; };
    std::string contentType = "application/json";
    bool bearerToken = true;
    std::string failureDomain = errorDomain::service;
    std::chrono::seconds wholeInterval = limits::request;
};

/// Tells the diagnostics of a call that failed; the frame does, for every call that goes through it. Any
/// thread.
void reportFailedCall(std::string_view endpoint, const Error& error);

namespace detail {

/// Goes through the frame: the online check, the address, the request. `answered` hears of the envelope of a
/// success on a thread of the network; `failed` of everything else, on that thread or, before anything was
/// sent, on the caller's.
void perform(const ServiceCall& call, std::function<void(const Envelope&)> answered,
             std::function<void(std::optional<Error>)> failed);

} // namespace detail

/// Sends `call` once and completes with what `read` makes of a successful answer, or with an empty result and
/// an error. Call on the main thread; completes on a thread of the network, or at once when nothing could be
/// sent.
template <class Result>
void send(const ServiceCall& call, std::function<Result(const Envelope&)> read,
          const Completion<Result>& completion) {
    detail::perform(
        call,
        [read = std::move(read), completion](const Envelope& envelope) { completion(read(envelope)); },
        [completion](std::optional<Error> error) { completion(Result(), std::move(error)); });
}

} // namespace ombrivane
