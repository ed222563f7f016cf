// The calls below /sandbox: for whoever watches the sandbox and tells it what to do.
#include "sandbox/Page.h"
#include "sandbox/Sandbox.h"
#include "sandbox/control/FaultPlan.h"
#include "sandbox/control/Scenarios.h"
#include "sandbox/service/Service.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <vector>

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
                        {"isOver", entry.isOver()}});
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

/// One call: how it is asked for, what it answers or does, and how.
struct Sandbox::ControlCall {
    std::string_view name;
    std::string_view meaning;
    HttpAnswer (*answer)(Sandbox& sandbox, const Json& body);
};

/// @throws std::invalid_argument, Json::exception where `body` is not what the call takes
const std::vector<Sandbox::ControlCall>& Sandbox::controlCalls() {
    using Texts = std::vector<std::string>;
    static const auto done = [] { return jsonAnswer(Json::object()); };
    static const std::vector<ControlCall> calls{
        {"GET /sandbox", "a page of all this", [](Sandbox&, const Json&) { return pageAnswer(); }},
        {"GET /sandbox/state",
         "what the page shows",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(sandbox.state()); }},
        {"GET /sandbox/requests",
         "every request, whole, with what was wrong in it",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(recordedJson(sandbox.log_.requests())); }},
        {"GET /sandbox/bookings",
         "every reservation and how far it has come",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(sandbox.service_->bookings()); }},
        {"GET /sandbox/scenarios",
         "the scenarios, and which are in force",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(sandbox.state().at("scenarios")); }},
        {"GET /sandbox/faults",
         "the faults in force, and how often each was met",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(faultsJson(sandbox.faults_->entries())); }},
        {"GET /sandbox/counters",
         "how many connections and requests there were",
         [](Sandbox& sandbox, const Json&) { return jsonAnswer(countersJson(sandbox.log_.counters())); }},
        {"POST /sandbox/play",
         "{\"scenarios\": [NAME, ...], \"faults\": [FAULT, ...]}, in place of all before",
         [](Sandbox& sandbox, const Json& body) {
             sandbox.play(body.at("scenarios").get<Texts>(), body.at("faults").get<Texts>());
             return done();
         }},
        {"POST /sandbox/faults",
         "[FAULT, ...], in place of all before",
         [](Sandbox& sandbox, const Json& body) {
             sandbox.setFaults(body.get<Texts>());
             return done();
         }},
        {"POST /sandbox/scenarios",
         "[NAME, ...], in place of all before",
         [](Sandbox& sandbox, const Json& body) {
             sandbox.setScenarios(body.get<Texts>());
             return done();
         }},
        {"POST /sandbox/clock",
         "{\"advance\": SECONDS}",
         [](Sandbox& sandbox, const Json& body) {
             sandbox.advanceClock(std::chrono::seconds(body.at("advance").get<int>()));
             return done();
         }},
        {"POST /sandbox/reset",
         "forgets faults, requests, tokens, searches and bookings",
         [](Sandbox& sandbox, const Json&) {
             sandbox.reset();
             return done();
         }},
    };
    return calls;
}

std::string Sandbox::controlText() {
    std::string text;
    for (const ControlCall& call : controlCalls())
        text += fmt::format("  {:<24} {}\n", call.name, call.meaning);
    return text;
}

HttpAnswer Sandbox::control(const HttpRequest& request) {
    const std::string asked = request.method + " " + request.path;
    const Json body = Json::parse(request.body, nullptr, false);
    for (const ControlCall& call : controlCalls()) {
        if (call.name == asked) return call.answer(*this, body);
    }
    return controlRefusal(fmt::format("{} is no call of the sandbox.", asked));
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
