#include "tests/sandbox/ServiceClient.h"

#include "sandbox/world/Dates.h"

#include <utility>

namespace ombrivane::sandbox {

ServiceClient::ServiceClient(Options options) : sandbox_(std::move(options)) {
    sandbox_.start();
    renewToken();
}

void ServiceClient::renewToken() {
    const Json answer = post(
        "/get-token", {{"user_type", "customer"}, {"username", "wallet"}, {"password", "wallet-secret"}});
    token_ = answer.at("data").at("accessToken").get<std::string>();
}

Json ServiceClient::post(const std::string& path, const Json& body) {
    return Json::parse(
        send({"POST", "/api/b2b/v2" + path, {"Content-Type: application/json", authorization()}, body.dump()})
            .body());
}

Json ServiceClient::get(const std::string& path) {
    return Json::parse(send({"GET", "/api/b2b/v2" + path, {authorization()}, ""}).body());
}

std::string ServiceClient::error(const Json& answer) {
    return answer.at("success") == true ? "" : answer.at("data").at("error").get<std::string>();
}

WireAnswer ServiceClient::send(const WireRequest& request) const {
    return exchange(sandbox_.address(), sandbox_.caFile(), request);
}

Options frozenOptions() {
    Options options;
    options.now = parseInstant("2026-03-01T12:00:00Z");
    options.frozen = true;
    return options;
}

Json searchBody(const std::string& from, const std::string& to) {
    return {{"user_type", "customer"},
            {"trip_type", "oneway"},
            {"depart_city", from},
            {"dest_city", to},
            {"depart_date", "2026-03-10"},
            {"nationality", "NP"},
            {"adults", 1},
            {"children", 0},
            {"infants", 0},
            {"flight_class", ""}};
}

Json roundBody(const std::string& from, const std::string& to) {
    Json body = searchBody(from, to);
    body["trip_type"] = "round";
    body["return_date"] = "2026-03-14";
    return body;
}

Json ownRecord(const Json& offer) {
    Json copy = offer;
    copy.erase("seats_left");
    for (const char* summary : {"flight_summary", "flight_departure_summary", "flight_return_summary"})
        if (copy.contains(summary))
            for (Json& segment : copy[summary]["segments"])
                segment.erase("meal_code");
    return copy;
}

} // namespace ombrivane::sandbox
