#include "DemoService.h"

#include "base/Date.h"

namespace ombrivane::demo {

std::unique_ptr<sandbox::Sandbox> startService(DemoOptions& options) {
    if (!options.testHost.empty()) return nullptr;
    sandbox::Options service;
    service.port = 0;
    service.faults = options.faults;
    service.scenarios = options.scenarios;
    if (const auto now = parseIso(options.now)) service.now = std::chrono::floor<std::chrono::seconds>(*now);
    auto sandbox = std::make_unique<sandbox::Sandbox>(service);
    sandbox->start();
    options.testHost = sandbox->address();
    options.ca = sandbox->caFile();
    return sandbox;
}

} // namespace ombrivane::demo
