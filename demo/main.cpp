#include "Complaints.h"
#include "DemoOptions.h"
#include "DemoWallet.h"
#include "base/Date.h"
#include "sandbox/Sandbox.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <iostream>
#include <optional>

Q_IMPORT_QML_PLUGIN(OmbrivanePlugin)

namespace {

/// The demo's own booking service, where no other is named.
std::unique_ptr<ombrivane::sandbox::Sandbox> startService(ombrivane::demo::DemoOptions& options) {
    if (!options.testHost.empty()) return nullptr;
    ombrivane::sandbox::Options service;
    service.port = 0;
    service.faults = options.faults;
    if (const auto now = ombrivane::parseIso(options.now))
        service.now = std::chrono::floor<std::chrono::seconds>(*now);
    auto sandbox = std::make_unique<ombrivane::sandbox::Sandbox>(service);
    sandbox->start();
    options.testHost = sandbox->address();
    options.ca = sandbox->caFile();
    return sandbox;
}

constexpr int broken = 3;

/// The wallet from its window to its end. @return the exit status
int run(const ombrivane::demo::DemoOptions& options) {
    ombrivane::demo::DemoWallet wallet(options);
    if (!wallet.isReady()) return broken;
    if (!options.picture.empty()) return wallet.takePicture(options.picture);
    return options.script.empty() ? QGuiApplication::exec() : wallet.playScript();
}

} // namespace

int main(int count, char** values) {
    ombrivane::demo::DemoOptions options;
    try {
        options = ombrivane::demo::DemoOptions::parse({values + 1, values + count});
    } catch (const std::exception& bad) {
        std::cerr << "ombrivane-demo: " << bad.what() << "\n";
        return 2;
    }
    if (options.help) {
        std::cout << ombrivane::demo::DemoOptions::usage();
        return 0;
    }
    const QGuiApplication application(count, values);
    const auto service = startService(options);
    if (options.script.empty()) return run(options);
    const ombrivane::demo::Complaints complaints;
    const int ending = run(options);
    return ending == 0 && ombrivane::demo::Complaints::count() > 0 ? broken : ending;
}
