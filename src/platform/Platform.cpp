#include "platform/Platform.h"

#include "base/Fault.h"

#include <optional>

namespace ombrivane {
namespace {

std::optional<Platform>& installed() {
    static std::optional<Platform> instance;
    return instance;
}

} // namespace

void Platform::install(Platform platform) { installed() = std::move(platform); }

void Platform::endNetwork() {
    if (!installed()) return;
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
