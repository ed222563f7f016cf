#include "Complaints.h"
#include "DemoOptions.h"
#include "DemoService.h"
#include "DemoWallet.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <iostream>

Q_IMPORT_QML_PLUGIN(OmbrivanePlugin)
Q_IMPORT_QML_PLUGIN(OmbrivaneDemoPlugin)

namespace {

constexpr int badArguments = 2;
constexpr int broken = 3;

/// The wallet from its window to its end. @return the exit status
int run(const ombrivane::demo::DemoOptions& options, ombrivane::sandbox::Sandbox* service) {
    ombrivane::demo::DemoWallet wallet(options, service);
    if (!wallet.isReady()) return broken;
    if (!options.picture.empty()) return wallet.takePicture(options.picture);
    if (options.script.empty()) return QGuiApplication::exec();
    const int ending = wallet.playScript();
    if (options.stays) QGuiApplication::exec();
    return ending;
}

} // namespace

int main(int count, char** values) {
    ombrivane::demo::DemoOptions options;
    std::unique_ptr<ombrivane::sandbox::Sandbox> service;
    try {
        options = ombrivane::demo::DemoOptions::parse({values + 1, values + count});
        if (options.help) {
            std::cout << ombrivane::demo::DemoOptions::usage();
            return 0;
        }
        service = ombrivane::demo::startService(options);
    } catch (const std::exception& bad) {
        std::cerr << "ombrivane-demo: " << bad.what() << "\n";
        return badArguments;
    }
    const QGuiApplication application(count, values);
    if (options.script.empty()) return run(options, service.get());
    const ombrivane::demo::Complaints complaints;
    const int ending = run(options, service.get());
    return ending == 0 && ombrivane::demo::Complaints::count() > 0 ? broken : ending;
}
