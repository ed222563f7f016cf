#include "ports/PortContract.h"
#include "sandbox/Sandbox.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace ombrivane::kit {
namespace {

/// What became of one request. Its completion holds it: a network may call one long after it should have.
struct Call : std::enable_shared_from_this<Call> {
    std::mutex mutex;
    std::condition_variable changed;
    int answers = 0;
    bool isInside = true;
    bool cameInside = false;
    bool cameHere = false;
    HttpAnswer last;

    HttpCompletion completion(std::thread::id caller) {
        return [self = shared_from_this(), caller](HttpAnswer answer) {
            const std::lock_guard lock(self->mutex);
            ++self->answers;
            self->cameInside = self->cameInside || self->isInside;
            self->cameHere = self->cameHere || std::this_thread::get_id() == caller;
            self->last = std::move(answer);
            self->changed.notify_all();
        };
    }
    void sent() {
        const std::lock_guard lock(mutex);
        isInside = false;
    }
    bool isAnsweredWithin(std::chrono::seconds limit) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, limit, [this] { return answers > 0; });
    }
};

HttpRequest tokenRequest(const std::string& address) {
    HttpRequest request;
    request.url = address + "/api/b2b/v2/get-token";
    request.method = "POST";
    request.headers = {{"Content-Type", "application/json"}};
    request.body = R"({"user_type":"customer","username":"wallet","password":"wallet-secret"})";
    return request;
}

/// One network under examination.
struct NetworkCheck {
    const std::function<std::shared_ptr<Network>(const std::string&)>& make;
    Findings findings = {};
    std::vector<std::shared_ptr<Call>> calls = {};

    /// How long an answer is waited for; less once one has not come, since the next one will not either.
    std::chrono::seconds patience{15};

    void expect(bool holds, const std::string& sentence) {
        if (!holds && std::find(findings.begin(), findings.end(), sentence) == findings.end())
            findings.push_back(sentence);
    }

    /// Sends `request`, looks at how the completion comes, and returns its answer.
    HttpAnswer ask(Network& network, HttpRequest request, const std::string& what) {
        const auto call = calls.emplace_back(std::make_shared<Call>());
        network.send(std::move(request), call->completion(std::this_thread::get_id()));
        call->sent();
        if (!call->isAnsweredWithin(patience)) {
            expect(false, "send: " + what + " is not answered");
            patience = std::chrono::seconds(1);
        }
        const std::lock_guard lock(call->mutex);
        expect(!call->cameInside, "send: the completion is called inside of the call");
        expect(!call->cameHere, "send: the completion is called on the thread of the caller");
        return call->last;
    }

    void requests();
    void certificates();
    void leaving();
};

void NetworkCheck::requests() {
    sandbox::Sandbox service;
    service.start();
    auto network = make(service.caFile().string());
    if (!network) return expect(false, "There is no network.");
    const HttpAnswer token = ask(*network, tokenRequest(service.address()), "a request");
    expect(token.data && token.data->find("accessToken") != std::string::npos,
           "send: the body of the answer is not what the service sent");
    expect(service.requests().size() == 1, "send: a request does not reach the service once");

    service.setFaults({"/get-token redirect=" + service.address() + "/logos/H0.png times=1"});
    ask(*network, tokenRequest(service.address()), "a redirect");
    expect(service.requests().size() <= 2, "send: follows a redirect");
    service.setFaults({"/get-token drop times=1"});
    const HttpAnswer broken =
        ask(*network, tokenRequest(service.address()), "a request whose connection ends");
    expect(broken.error && !broken.data, "send: a connection that ends without an answer is no error");
    expect(service.requests().size() <= 3, "send: a request is sent again after its connection ended");
    network.reset();
    for (const auto& call : calls) {
        const std::lock_guard lock(call->mutex);
        expect(call->answers <= 1, "send: a completion is called more than once");
    }
}

void NetworkCheck::certificates() {
    const std::pair<sandbox::CertificateKind, const char*> bad[] = {
        {sandbox::CertificateKind::SelfSigned, "signed by itself"},
        {sandbox::CertificateKind::Expired, "expired"},
        {sandbox::CertificateKind::WrongHost, "made out to another name"},
        {sandbox::CertificateKind::Untrusted, "signed by an authority that is not trusted"},
    };
    for (const auto& [kind, what] : bad) {
        sandbox::Options options;
        options.certificate = kind;
        sandbox::Sandbox service(options);
        service.start();
        const auto network = make(service.caFile().string());
        const HttpAnswer answer = ask(*network, tokenRequest(service.address()), "a request");
        expect(answer.error.has_value() && service.requests().empty(),
               std::string("send: trusts a certificate that is ") + what);
    }
}

void NetworkCheck::leaving() {
    sandbox::Options options;
    options.faults = {"* silence"};
    sandbox::Sandbox service(options);
    service.start();
    const auto call = std::make_shared<Call>();
    auto network = make(service.caFile().string());
    network->send(tokenRequest(service.address()), call->completion(std::this_thread::get_id()));
    call->sent();
    const auto limit = std::chrono::steady_clock::now() + patience;
    while (service.requests().empty() && !call->isAnsweredWithin(std::chrono::seconds(0)) &&
           std::chrono::steady_clock::now() < limit)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    const auto begun = std::chrono::steady_clock::now();
    network.reset();
    expect(std::chrono::steady_clock::now() - begun < std::chrono::seconds(5),
           "destruction: waits for a service that does not answer");
    const std::lock_guard lock(call->mutex);
    expect(call->answers == 1, "destruction: what is under way is not answered once before it is over");
    expect(call->answers == 0 || call->last.error.has_value(),
           "destruction: what is under way ends without an error");
}

} // namespace

Findings checkNetwork(const std::function<std::shared_ptr<Network>(const std::string& caFile)>& make) {
    NetworkCheck check{make};
    check.requests();
    if (check.findings.empty() || check.findings.front() != "There is no network.") {
        check.certificates();
        check.leaving();
    }
    return std::move(check.findings);
}

} // namespace ombrivane::kit
