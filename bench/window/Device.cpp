#include "Device.h"

#include "base/SharedInstance.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"

#include <QCoreApplication>

#include <chrono>

namespace ombrivane::bench {
namespace {

std::chrono::sys_seconds now() {
    using namespace std::chrono;
    return sys_days(2026y / November / 21) + 3h + 30min;
}

sandbox::Options options() {
    sandbox::Options options;
    options.now = now();
    options.frozen = true;
    return options;
}

} // namespace

Device::Device() : service_(options()) {
    service_.start();
    ServiceHosts::use({.production = service_.address(), .test = service_.address()});
    Platform ports = view::qtPlatform(service_.caFile());
    clock_->startAt(now());
    ports.clock = clock_;
    Platform::install(std::move(ports));
}

Device::~Device() {
    Platform::endNetwork();
    QCoreApplication::processEvents();
    dropSharedInstances();
    Platform::install({});
    service_.stop();
}

} // namespace ombrivane::bench
