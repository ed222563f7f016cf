// A wallet without a view: the component's screens are worked by their keys, as the journeys do.
#include "keyed/Navigator.h"
#include "platform/HeadlessPlatform.h"
#include "services/ServiceHosts.h"
#include "session/OmbrivaneView.h"
#include "session/Reservations.h"

#include <iostream>

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const auto loop = std::make_shared<ombrivane::RunLoop>();
    ombrivane::Platform::install(ombrivane::headlessPlatform(loop, certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    auto& reservations = ombrivane::Reservations::shared();
    const auto receipts = reservations.observe([&reservations] {
        while (const auto reserved = reservations.take())
            std::cout << reserved->at("bookingSummary").at("PNR") << "\n";
    });
    ombrivane::OmbrivaneView view(
        "wallet", "wallet-secret", "customer", 250000, "9800000000", "test", [](auto, auto error) {
            if (error) std::cout << error->localizedDescription << "\n";
        });
    view.show();
    const auto opened = [&view] { return view.navigator()->find("MainView") != nullptr; };
    const bool ready = loop->runUntil(opened, std::chrono::seconds(20));
    std::cout << (ready ? "the search is there\n" : "the search did not come\n");
    ombrivane::Platform::endNetwork();
    return ready ? 0 : 1;
}
