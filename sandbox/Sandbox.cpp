#include "sandbox/Sandbox.h"

#include "sandbox/HttpsServer.h"
#include "sandbox/control/Delivery.h"
#include "sandbox/control/FaultPlan.h"
#include "sandbox/control/Scenarios.h"
#include "sandbox/service/Service.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <future>
#include <optional>
#include <system_error>
#include <utility>

namespace ombrivane::sandbox {

namespace {

/// The page, and what stands below it.
bool isControl(std::string_view path) {
    constexpr std::string_view page = "/sandbox";
    return path.substr(0, page.size()) == page && (path.size() == page.size() || path[page.size()] == '/');
}

std::vector<Fault> parsed(const std::vector<std::string>& texts) {
    std::vector<Fault> faults;
    for (const std::string& text : texts)
        faults.push_back(parseFault(text));
    return faults;
}

std::vector<Fault> faultsOf(const Scenario& scenario) {
    std::vector<Fault> faults = parsed(scenario.faults);
    for (Fault& fault : faults)
        fault.scenario = scenario.name;
    return faults;
}

/// On what terms all of them together price offers; of several the last counts.
Terms termsOf(const std::vector<std::string>& names) {
    Terms terms;
    for (const std::string& name : names) {
        const Scenario& scenario = scenarioNamed(name);
        if (scenario.farePercent) terms.farePercent = scenario.farePercent;
        if (scenario.holds) terms.holds = *scenario.holds;
    }
    return terms;
}

/// The path as faults name it: without the prefix of the service.
std::string_view faultPath(std::string_view path) {
    return path.substr(0, pathPrefix.size()) == pathPrefix ? path.substr(pathPrefix.size()) : path;
}

bool wantsToClose(const HttpRequest& request) {
    return equalIgnoringCase(request.header("Connection"), "close");
}

/// Which faults a request met, as they were written.
std::vector<std::string> written(const std::vector<Fault>& faults) {
    std::vector<std::string> texts;
    for (const Fault& fault : faults)
        texts.push_back(fault.written);
    return texts;
}

/// What ends the connection in its own way tells no status.
bool tellsStatus(DeliveryPlan::Manner manner) {
    using Manner = DeliveryPlan::Manner;
    return manner != Manner::Drop && manner != Manner::Reset && manner != Manner::HalfStatusLine &&
           manner != Manner::Silence;
}

} // namespace

Sandbox::Sandbox(Options options) : options_(std::move(options)), faults_(std::make_unique<FaultPlan>()) {
    play(options_.scenarios, options_.faults);
}

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
    {
        const std::lock_guard lock(playing_);
        service_ = std::make_unique<Service>(options_, address_);
        service_->setTerms(termsOf(scenarios_));
    }
    ready.set_value();
}

void Sandbox::stop() {
    server_.reset();
    {
        const std::lock_guard lock(playing_);
        service_.reset();
    }
    address_.clear();
    if (!temporaryFolder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(temporaryFolder_, ignored);
        temporaryFolder_.clear();
    }
}

void Sandbox::play(const std::vector<std::string>& scenarios, const std::vector<std::string>& faults) {
    std::vector<Fault> all;
    for (const std::string& name : scenarios)
        for (Fault& fault : faultsOf(scenarioNamed(name)))
            all.push_back(std::move(fault));
    for (Fault& fault : parsed(faults))
        all.push_back(std::move(fault));
    const std::lock_guard lock(playing_);
    scenarios_ = scenarios;
    faults_->replace(std::move(all));
    if (service_) service_->setTerms(termsOf(scenarios_));
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
    if (isControl(request.path)) {
        if (isFirst) log_.disregardConnection();
        return deliver(answerControl(request), {}, connection);
    }
    const auto arrived = std::chrono::steady_clock::now();
    const std::size_t number = log_.record(request);
    std::vector<Fault> later; // what the reservation, once it is made, brings about
    if (faultPath(request.path) == "/reservation") {
        if (const Scenario* scenario = scenarioOfTravellers(request.body)) later = faultsOf(*scenario);
        const auto own = std::stable_partition(
            later.begin(), later.end(), [](const Fault& fault) { return fault.path != "/reservation"; });
        faults_->add({own, later.end()});
        later.erase(own, later.end());
    }
    const std::vector<Fault> faults = faults_->due(faultPath(request.path));
    const bool isPrevented = std::any_of(
        faults.begin(), faults.end(), [](const Fault& fault) { return preventsTheOperation(fault.kind); });
    HttpAnswer reply = isPrevented ? HttpAnswer{} : service_->answer(request);
    if (!isPrevented && reply.refusal.empty()) faults_->add(std::move(later));
    for (const Fault& fault : faults)
        reply = withFault(std::move(reply), fault);
    DeliveryPlan plan = planDelivery(faults);
    plan.keepConnection = plan.manner == DeliveryPlan::Manner::Whole && !wantsToClose(request);
    log_.complete(number, tellsStatus(plan.manner) ? reply.status : 0, reply.refusal, written(faults));
    const bool another = deliver(reply, plan, connection);
    log_.sent(
        number,
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - arrived));
    return another;
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
