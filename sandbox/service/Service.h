// The booking service itself, without the network: a request in, an answer out.
#pragma once

#include "sandbox/control/Options.h"
#include "sandbox/service/Bookings.h"
#include "sandbox/service/ClientAccounts.h"
#include "sandbox/service/OfferBook.h"
#include "sandbox/service/ServiceClock.h"
#include "sandbox/wire/HttpMessage.h"
#include "sandbox/world/Trip.h"

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

    /// All bookings and their states.
    Json bookings();

    /// Turns the service's clock on.
    void advanceClock(std::chrono::seconds time) { clock_.advance(time); }

    /// What its clock shows, and whether it stands still.
    [[nodiscard]] Instant now() const { return clock_.now(); }
    [[nodiscard]] bool standsStill() const { return clock_.standsStill(); }

    /// On what terms offers are priced from here on.
    void setTerms(const Terms& terms);

    /// Forgets tokens, searches and bookings.
    void reset();

private:
    /// A request to an endpoint, with what all endpoints need of it.
    struct Call;
    struct Endpoint;

    HttpAnswer answerEndpoint(const Endpoint& endpoint, const HttpRequest& request);
    HttpAnswer answerPage(const HttpRequest& request);

    HttpAnswer getToken(const Call& call);
    HttpAnswer getCountries(const Call& call);
    HttpAnswer getAirports(const Call& call);
    HttpAnswer searchFlights(const Call& call);
    HttpAnswer verifyFlights(const Call& call);
    HttpAnswer openAvailability(const Call& call);
    HttpAnswer reserve(const Call& call);
    HttpAnswer uploadDocuments(const Call& call);
    HttpAnswer orderPayment(const Call& call);
    HttpAnswer confirmPayment(const Call& call);
    HttpAnswer issue(const Call& call);
    HttpAnswer download(const Call& call);

    std::mutex mutex_;
    std::string address_;
    DocumentsRule documents_;
    std::string otp_;
    ServiceClock clock_;
    ClientAccounts accounts_;
    OfferBook offers_;
    Bookings bookings_;
    Terms terms_;
};

} // namespace ombrivane::sandbox
