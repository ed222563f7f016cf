#include "Window.h"

#include "base/SharedInstance.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(OmbrivanePlugin)

namespace ombrivane::view {

sandbox::Sandbox& service() {
    static sandbox::Sandbox instance = [] {
        sandbox::Options options;
        options.now = startOfTests();
        options.frozen = true;
        return sandbox::Sandbox(options);
    }();
    return instance;
}

std::chrono::sys_seconds startOfTests() {
    using namespace std::chrono;
    return sys_days(2026y / November / 21) + 3h + 30min;
}

} // namespace ombrivane::view

int main(int count, char** values) {
    qputenv("TZ", "Asia/Kathmandu");
    const QGuiApplication application(count, values);
    ::testing::InitGoogleTest(&count, values);
    auto& service = ombrivane::view::service();
    service.start();
    ombrivane::ServiceHosts::use({.production = "https://localhost:1", .test = service.address()});
    ombrivane::Platform::install(ombrivane::view::qtPlatform(service.caFile()));
    const int result = RUN_ALL_TESTS();
    ombrivane::Platform::endNetwork();
    QCoreApplication::processEvents();
    ombrivane::dropSharedInstances();
    ombrivane::Platform::install({});
    service.stop();
    return result;
}
