// A wallet that keeps what happens in a file, one JSON object a line: what the component did, and its
// requests.
#include "events/HostEvents.h"
#include "keyed/Navigator.h"
#include "platform/HeadlessPlatform.h"
#include "services/ServiceHosts.h"
#include "session/OmbrivaneView.h"

#include <filesystem>
#include <fstream>
#include <mutex>

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const auto loop = std::make_shared<ombrivane::RunLoop>();
    ombrivane::Platform::install(ombrivane::headlessPlatform(loop, certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    std::mutex writing; // requests end on a thread of the network
    std::ofstream log(std::filesystem::temp_directory_path() / "flights.log", std::ios::app);
    const auto write = [&](const auto& told) {
        const std::lock_guard lock(writing);
        log << told.json().dump() << std::endl;
    };
    const auto listening = ombrivane::HostEvents::shared().listen(write, write);

    ombrivane::OmbrivaneView view(
        "wallet", "wallet-secret", "customer", 250000, "9800000000", "test", [](auto, auto) {});
    view.show();
    const auto opened = [&view] { return view.navigator()->find("MainView") != nullptr; };
    const bool ready = loop->runUntil(opened, std::chrono::seconds(20));
    ombrivane::Platform::endNetwork();
    return ready ? 0 : 1;
}
