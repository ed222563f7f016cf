#include "sandbox/Sandbox.h"

#include "sandbox/HttpsServer.h"
#include "sandbox/control/Delivery.h"
#include "sandbox/control/Scenarios.h"
#include "sandbox/service/Service.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <future>
#include <optional>
#include <system_error>
#include <utility>

namespace ombrivane::sandbox {

namespace {

constexpr std::string_view controlPrefix = "/sandbox/";

std::vector<Fault> parsed(const std::vector<std::string>& texts) {
    std::vector<Fault> faults;
    for (const std::string& text : texts)
        faults.push_back(parseFault(text));
    return faults;
}

/// The path as faults name it: without the prefix of the service.
std::string_view faultPath(std::string_view path) {
    return path.substr(0, pathPrefix.size()) == pathPrefix ? path.substr(pathPrefix.size()) : path;
}

bool wantsToClose(const HttpRequest& request) {
    return equalIgnoringCase(request.header("Connection"), "close");
}

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
                        {"bodyBytes", request.body.size()}});
    }
    return list;
}

Json scenariosJson() {
    Json list = Json::array();
    for (const Scenario& scenario : scenarios())
        list.push_back({{"name", scenario.name}, {"meaning", scenario.meaning}});
    return list;
}

HttpAnswer controlRefusal(const std::string& message) { return jsonAnswer({{"error", message}}, 400); }

} // namespace

Sandbox::Sandbox(Options options) : options_(std::move(options)) { setFaults(options_.faults); }

Sandbox::~Sandbox() { stop(); }

void Sandbox::start() {
    if (server_) return;
    const ServerIdentity identity = makeServerIdentity(options_.certificate);
    writeCaFile(identity.authorityPem);
    // The handler waits for the service, because its links need the port, which only the listening server
    // knows.
    std::promise<void> ready;
    const std::shared_future<void> isReady = ready.get_future().share();
    server_ = std::make_unique<HttpsServer>(
        options_.port,
        identity,
        log_,
        [this, isReady](const HttpRequest& request, bool isFirst, TlsConnection& connection) {
            isReady.wait();
            return answer(request, isFirst, connection);
        });
    address_ = fmt::format("https://localhost:{}", server_->port());
    service_ = std::make_unique<Service>(options_, address_);
    if (!options_.scenarios.empty()) {
        setScenarios(options_.scenarios);
        faults_.add(parsed(options_.faults));
    }
    ready.set_value();
}

void Sandbox::stop() {
    server_.reset();
    service_.reset();
    address_.clear();
    if (!temporaryFolder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(temporaryFolder_, ignored);
        temporaryFolder_.clear();
    }
}

void Sandbox::setFaults(const std::vector<std::string>& faults) { faults_.replace(parsed(faults)); }

void Sandbox::setScenarios(const std::vector<std::string>& names) {
    std::vector<Fault> faults;
    Terms terms;
    for (const std::string& name : names) {
        const Scenario& scenario = scenarioNamed(name);
        for (Fault& fault : parsed(scenario.faults))
            faults.push_back(std::move(fault));
        if (scenario.farePercent) terms.farePercent = scenario.farePercent;
        if (scenario.holds) terms.holds = *scenario.holds;
    }
    faults_.replace(std::move(faults));
    if (service_) service_->setTerms(terms);
}

void Sandbox::advanceClock(std::chrono::seconds time) {
    if (service_) service_->advanceClock(time);
}

void Sandbox::reset() {
    setScenarios({});
    log_.clear();
    if (service_) service_->reset();
}

bool Sandbox::answer(const HttpRequest& request, bool isFirst, TlsConnection& connection) {
    if (request.path.compare(0, controlPrefix.size(), controlPrefix) == 0) {
        if (isFirst) log_.disregardConnection();
        return deliver(answerControl(request), {}, connection);
    }
    log_.record(request);
    if (faultPath(request.path) == "/reservation") {
        if (const Scenario* scenario = scenarioOfTravellers(request.body))
            faults_.add(parsed(scenario->faults));
    }
    const std::vector<Fault> faults = faults_.due(faultPath(request.path));
    const bool isPrevented = std::any_of(
        faults.begin(), faults.end(), [](const Fault& fault) { return preventsTheOperation(fault.kind); });
    HttpAnswer reply = isPrevented ? HttpAnswer{} : service_->answer(request);
    for (const Fault& fault : faults)
        reply = withFault(std::move(reply), fault);
    DeliveryPlan plan = planDelivery(faults);
    plan.keepConnection = plan.manner == DeliveryPlan::Manner::Whole && !wantsToClose(request);
    return deliver(reply, plan, connection);
}

HttpAnswer Sandbox::answerControl(const HttpRequest& request) {
    const std::string call = request.method + " " + request.path;
    const Json body = Json::parse(request.body, nullptr, false);
    try {
        if (call == "GET /sandbox/requests") return jsonAnswer(recordedJson(log_.requests()));
        if (call == "GET /sandbox/bookings") return jsonAnswer(service_->bookings());
        if (call == "GET /sandbox/scenarios") return jsonAnswer(scenariosJson());
        if (call == "GET /sandbox/counters") {
            const Counters counters = log_.counters();
            return jsonAnswer({{"connections", counters.connections},
                               {"handshakeFailures", counters.handshakeFailures},
                               {"requests", counters.requests}});
        }
        if (call == "POST /sandbox/faults") {
            setFaults(body.get<std::vector<std::string>>());
            return jsonAnswer(Json::object());
        }
        if (call == "POST /sandbox/scenarios") {
            setScenarios(body.get<std::vector<std::string>>());
            return jsonAnswer(Json::object());
        }
        if (call == "POST /sandbox/clock") {
            advanceClock(std::chrono::seconds(body.at("advance").get<int>()));
            return jsonAnswer(Json::object());
        }
        if (call == "POST /sandbox/reset") {
            reset();
            return jsonAnswer(Json::object());
        }
    } catch (const std::invalid_argument& wrongWord) {
        return controlRefusal(wrongWord.what());
    } catch (const Json::exception&) {
        return controlRefusal("The body is not what this path takes.");
    }
    return controlRefusal(fmt::format("{} is no call of the sandbox.", call));
}

void Sandbox::writeCaFile(const std::string& pem) {
    caFile_ = options_.caFile;
    if (caFile_.empty()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "ombrivane-sandbox-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::system_error(errno, std::generic_category(), "cannot make a temporary folder");
        temporaryFolder_ = pattern;
        caFile_ = temporaryFolder_ / "ca.pem";
    }
    std::ofstream file(caFile_, std::ios::binary);
    file << pem;
    file.close();
    if (!file) throw std::system_error(EIO, std::generic_category(), "cannot write " + caFile_.string());
}

} // namespace ombrivane::sandbox
