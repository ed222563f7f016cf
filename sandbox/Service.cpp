#include "sandbox/Service.h"

#include "sandbox/BodyFields.h"
#include "sandbox/Refusal.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ombrivane::sandbox {

struct Service::Endpoint {
    std::string_view path;
    std::string_view method;
    bool needsToken;
    HttpAnswer (Service::*answer)(const HttpRequest&);
};

namespace {

Json parsedBody(const HttpRequest& request) {
    if (!equalIgnoringCase(request.header("Content-Type").substr(0, request.header("Content-Type").find(';')),
                           "application/json"))
        throw Refusal("The Content-Type must be application/json.");
    Json body = Json::parse(request.body, nullptr, false);
    if (body.is_discarded()) throw Refusal("The request body is no JSON.");
    return body;
}

} // namespace

Service::Service(const Options& options, std::string address) :
    address_(std::move(address)),
    clock_(options.now, options.frozen),
    accounts_(options.seed, options.clients) {}

HttpAnswer Service::answer(const HttpRequest& request) {
    static constexpr std::array<Endpoint, 1> endpoints{{
        {"/get-token", "POST", false, &Service::getToken},
    }};
    const std::lock_guard lock(mutex_);
    try {
        if (request.path.compare(0, pathPrefix.size(), pathPrefix) != 0)
            throw Refusal(fmt::format("There is nothing at {}.", request.path), 404);
        const std::string_view path = std::string_view(request.path).substr(pathPrefix.size());
        const auto found = std::find_if(endpoints.begin(), endpoints.end(),
                                        [&](const Endpoint& endpoint) { return endpoint.path == path; });
        if (found == endpoints.end())
            throw Refusal(fmt::format("There is nothing at {}.", request.path), 404);
        return answerEndpoint(*found, request);
    } catch (const Refusal& refusal) {
        return refusalAnswer(refusal.what(), refusal.status());
    }
}

HttpAnswer Service::answerEndpoint(const Endpoint& endpoint, const HttpRequest& request) {
    if (endpoint.method != request.method)
        throw Refusal(fmt::format("{} takes {}.", endpoint.path, endpoint.method), 405);
    if (endpoint.needsToken) static_cast<void>(accounts_.userTypeOf(request.header("Authorization")));
    return (this->*endpoint.answer)(request);
}

void Service::reset() {
    const std::lock_guard lock(mutex_);
    accounts_.clear();
}

HttpAnswer Service::getToken(const HttpRequest& request) {
    const Json body = parsedBody(request);
    const BodyFields fields(body);
    fields.expectKeys({"user_type", "username", "password"});
    const std::string token = accounts_.issueToken(fields.text("username"), fields.text("password"),
                                                   fields.filledText("user_type"));
    return successAnswer({{"tokenType", "Bearer"}, {"accessToken", token}});
}

} // namespace ombrivane::sandbox
