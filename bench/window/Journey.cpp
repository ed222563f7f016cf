#include "Journey.h"

#include "Script.h"
#include "base/SharedInstance.h"
#include "device/QtMainQueue.h"
#include "state/AppState.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <fstream>
#include <stdexcept>

namespace ombrivane::bench {
namespace {

bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    QElapsedTimer time;
    time.start();
    QTimer tick;
    tick.start(std::chrono::milliseconds(5));
    while (!done()) {
        if (time.elapsed() >= limit.count()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace

Journey::Journey(Device& device) : device_(device), former_(platform()) {
    dropSharedInstances(); // each customer starts with an empty form
    Platform ports = former_;
    ports.photos = photos_;
    ports.reachability = reachability_;
    Platform::install(std::move(ports));
    session_.clientId = "wallet";
    session_.clientSecret = "wallet-secret";
}

Journey::~Journey() {
    session_.drop();
    AppState::shared().resetNavigation();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Platform::install(std::move(former_));
    device_.service().setFaults({});
}

void Journey::play(
    const std::string& file,
    const std::function<void(const std::string& name, const std::shared_ptr<Screen>& screen)>& look) {
    auto& queue = dynamic_cast<view::QtMainQueue&>(*platform().mainQueue);
    journey::Script script({
        .runUntil = [](const auto& done, auto limit) { return runUntil(done, limit); },
        .advance = [&](auto duration) { queue.advance(duration); },
        .open = [&] { session_.open(); },
        .destroy = [&] { session_.drop(); },
        .navigator = [&] { return session_.navigator(); },
        .faulted = [] { return false; },
        .log = log_,
        .clock = device_.clock(),
        .reachability = *reachability_,
        .photos = *photos_,
    });
    script.addCommand("look", [&](const std::string& name) { look(name, session_.navigator()->top()); });
    script.addCommand("faults", [&](const std::string& fault) {
        device_.service().setFaults(fault.empty() ? std::vector<std::string>() : std::vector{fault});
    });
    std::ifstream lines(file);
    session_.open();
    if (!lines || script.play(lines) != journey::Ending::done) {
        throw std::runtime_error("a journey stopped early: " + file);
    }
}

} // namespace ombrivane::bench
