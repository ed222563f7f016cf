// The calls below /sandbox: for whoever watches the sandbox and tells it what to do.
#include "sandbox/Page.h"
#include "sandbox/Sandbox.h"
#include "sandbox/control/FaultPlan.h"
#include "sandbox/control/Scenarios.h"
#include "sandbox/service/Service.h"

#include <fmt/format.h>

#include <algorithm>

namespace ombrivane::sandbox {

namespace {

/// As many requests as the page shows.
constexpr std::size_t shownRequests = 200;

Json recordedJson(const std::vector<RecordedRequest>& requests) {
    Json list = Json::array();
    for (const RecordedRequest& request : requests) {
        Json headers = Json::array();
        for (const HttpHeader& header : request.headers)
            headers.push_back({{"name", header.name}, {"value", header.value}});
        list.push_back({{"method", request.method},
                        {"path", request.path},
                        {"target", request.target},
                        {"headers", headers},
                        {"body", request.body},
                        {"bodyBytes", request.body.size()},
                        {"status", request.status},
                        {"refusal", request.refusal}});
    }
    return list;
}

/// Without what a client sent in headers, query and body: tokens, secrets and names stay where they are.
Json outlineJson(const std::vector<RecordedRequest>& requests) {
    Json list = Json::array();
    for (const RecordedRequest& request : requests)
        list.push_back({{"method", request.method},
                        {"path", request.path},
                        {"status", request.status},
                        {"milliseconds", request.took ? Json(request.took->count()) : Json()},
                        {"refusal", request.refusal},
                        {"faults", request.faults}});
    return list;
}

Json countersJson(const Counters& counters) {
    return {{"connections", counters.connections},
            {"handshakeFailures", counters.handshakeFailures},
            {"requests", counters.requests}};
}

Json scenariosJson(const std::vector<std::string>& inForce) {
    Json list = Json::array();
    for (const Scenario& scenario : scenarios())
        list.push_back(
            {{"name", scenario.name},
             {"meaning", scenario.meaning},
             {"inForce", std::find(inForce.begin(), inForce.end(), scenario.name) != inForce.end()}});
    return list;
}

Json faultsJson(const std::vector<FaultPlan::Entry>& entries) {
    Json list = Json::array();
    for (const FaultPlan::Entry& entry : entries)
        list.push_back({{"fault", entry.fault.written},
                        {"scenario", entry.fault.scenario},
                        {"met", entry.met()},
                        {"isOver", entry.met() == entry.fault.times}});
    return list;
}

HttpAnswer controlRefusal(const std::string& message, int status = 400) {
    return jsonAnswer({{"error", message}}, status);
}

/// Whether a page of somebody else's asks, by way of a browser that trusts the sandbox.
bool isForeign(const HttpRequest& request) {
    const std::string origin = request.header("Origin");
    return !origin.empty() && origin != "https://" + request.header("Host");
}

} // namespace

HttpAnswer Sandbox::answerControl(const HttpRequest& request) {
    if (isForeign(request)) return controlRefusal("Another site's page has no say here.", 403);
    try {
        return control(request);
    } catch (const std::invalid_argument& wrongWord) {
        return controlRefusal(wrongWord.what());
    } catch (const Json::exception&) {
        return controlRefusal("The body is not what this path takes.");
    }
}

HttpAnswer Sandbox::control(const HttpRequest& request) {
    using Texts = std::vector<std::string>;
    const std::string call = request.method + " " + request.path;
    if (call == "GET /sandbox") return pageAnswer();
    if (call == "GET /sandbox/state") return jsonAnswer(state());
    if (call == "GET /sandbox/requests") return jsonAnswer(recordedJson(log_.requests()));
    if (call == "GET /sandbox/bookings") return jsonAnswer(service_->bookings());
    if (call == "GET /sandbox/scenarios") return jsonAnswer(state().at("scenarios"));
    if (call == "GET /sandbox/faults") return jsonAnswer(faultsJson(faults_->entries()));
    if (call == "GET /sandbox/counters") return jsonAnswer(countersJson(log_.counters()));
    const Json body = Json::parse(request.body, nullptr, false);
    if (call == "POST /sandbox/play") {
        play(body.at("scenarios").get<Texts>(), body.at("faults").get<Texts>());
    } else if (call == "POST /sandbox/faults") {
        setFaults(body.get<Texts>());
    } else if (call == "POST /sandbox/scenarios") {
        setScenarios(body.get<Texts>());
    } else if (call == "POST /sandbox/clock") {
        advanceClock(std::chrono::seconds(body.at("advance").get<int>()));
    } else if (call == "POST /sandbox/reset") {
        reset();
    } else {
        return controlRefusal(fmt::format("{} is no call of the sandbox.", call));
    }
    return jsonAnswer(Json::object());
}

Json Sandbox::state() const {
    std::vector<std::string> inForce;
    {
        const std::lock_guard lock(playing_);
        inForce = scenarios_;
    }
    return {{"requests", outlineJson(log_.outlines(shownRequests))},
            {"counters", countersJson(log_.counters())},
            {"bookings", service_->bookings()},
            {"scenarios", scenariosJson(inForce)},
            {"faults", faultsJson(faults_->entries())},
            {"clock", {{"now", instantText(service_->now())}, {"frozen", service_->standsStill()}}}};
}

} // namespace ombrivane::sandbox
