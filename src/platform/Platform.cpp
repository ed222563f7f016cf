#include "platform/Platform.h"

#include "base/Fault.h"

#include <cstdlib>
#include <optional>

namespace ombrivane {
namespace {

/// Never destroyed: threads of the network read it until the process has gone.
std::optional<Platform>& installed() {
    static auto& instance = *new std::optional<Platform>;
    return instance;
}

void leaveNetwork() {
    if (!installed()) return;
    installed()->background.reset();
    if (installed()->network) installed()->network->leave();
}

} // namespace

void Platform::install(Platform platform) {
    [[maybe_unused]] static const int registered = std::atexit(leaveNetwork);
    installed() = std::move(platform);
}

void Platform::endNetwork() {
    if (!installed()) return;
    installed()->background.reset(); // what it is at is sent, and answered as all else
    // Out of the platform before its thread ends: completions on that thread still read the other ports.
    std::shared_ptr<Network> network = std::move(installed()->network);
    network.reset();
}

const Platform& platform() {
    if (!installed()) fatalFault("no platform is installed");
    return *installed();
}

MainQueue& mainQueue() {
    if (!platform().mainQueue) fatalFault("the platform has no main queue");
    return *platform().mainQueue;
}

} // namespace ombrivane
