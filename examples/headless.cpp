// A wallet without a view: the component's screens are worked by their keys, as the journeys do.
#include "platform/AdjustableClock.h"
#include "platform/CurlNetwork.h"
#include "platform/DirectoryBundles.h"
#include "platform/Platform.h"
#include "platform/RouteReachability.h"
#include "platform/RunLoop.h"
#include "platform/SystemLocalization.h"
#include "services/ServiceHosts.h"
#include "session/OmbrivaneView.h"
#include "support/Navigator.h"

#include <iostream>

int main(int count, char** values) {
    if (count < 3) return 2;
    using namespace ombrivane;
    const auto loop = std::make_shared<RunLoop>();
    Platform ports;
    ports.mainQueue = loop;
    ports.network = std::make_shared<CurlNetwork>(CurlSettings{.caFile = values[2]});
    ports.reachability = std::make_shared<RouteReachability>("127.0.0.1");
    ports.clock = std::make_shared<AdjustableClock>();
    ports.localization = std::make_shared<SystemLocalization>();
    ports.bundles = std::make_shared<DirectoryBundles>("com.framework.Ombrivane", ".");
    ports.fonts = std::make_shared<NoFonts>();
    Platform::install(ports);
    ServiceHosts::use({.production = values[1], .test = values[1]});

    OmbrivaneView view(
        "wallet", "wallet-secret", "customer", 250000, "9800000000", "test", [](auto reserved, auto error) {
            if (reserved) std::cout << reserved->dump() << "\n";
            if (error) std::cout << error->localizedDescription << "\n";
        });
    view.show();
    const auto opened = [&view] { return view.navigator()->find("MainView") != nullptr; };
    const bool ready = loop->runUntil(opened, std::chrono::seconds(20));
    std::cout << (ready ? "the search is there\n" : "the search did not come\n");
    Platform::endNetwork();
    return ready ? 0 : 1;
}
