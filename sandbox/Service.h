// The booking service itself, without the network: a request in, an answer out.
#pragma once

#include "sandbox/ClientAccounts.h"
#include "sandbox/HttpMessage.h"
#include "sandbox/Options.h"
#include "sandbox/ServiceClock.h"

#include <mutex>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

/// What stands before every path of the service.
inline constexpr std::string_view pathPrefix = "/api/b2b/v2";

/// Safe from every thread; requests are answered one at a time.
class Service {
public:
    /// `address` is the scheme, host and port under which clients reach it; links in answers begin with it.
    Service(const Options& options, std::string address);

    HttpAnswer answer(const HttpRequest& request);

    /// Turns the service's clock on.
    void advanceClock(std::chrono::seconds time) { clock_.advance(time); }

    /// Forgets tokens, searches and bookings.
    void reset();

private:
    struct Endpoint;

    HttpAnswer answerEndpoint(const Endpoint& endpoint, const HttpRequest& request);
    HttpAnswer getToken(const HttpRequest& request);

    std::mutex mutex_;
    std::string address_;
    ServiceClock clock_;
    ClientAccounts accounts_;
};

} // namespace ombrivane::sandbox
