#pragma once

#include "base/Fault.h"
#include "fakes/FakeNetwork.h"
#include "fakes/FakePorts.h"
#include "fakes/ManualMainQueue.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ombrivane::fakes {

/// The world of one test: every port a fake, no shared instance left from the test before, faults collected.
class World {
public:
    World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;
    /// Fails the test when a fault happened that it did not take.
    ~World();

    /// The faults since the last call.
    std::vector<std::string> takeFaults();

    std::shared_ptr<ManualMainQueue> queue = std::make_shared<ManualMainQueue>();
    std::shared_ptr<FakeNetwork> network = std::make_shared<FakeNetwork>();
    std::shared_ptr<FakeReachability> reachability = std::make_shared<FakeReachability>();
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeBundles> bundles = std::make_shared<FakeBundles>();
    std::shared_ptr<FakeFonts> fonts = std::make_shared<FakeFonts>();
    std::shared_ptr<FakeLocalization> localization = std::make_shared<FakeLocalization>();
    std::shared_ptr<FakePhotos> photos = std::make_shared<FakePhotos>();
    std::shared_ptr<FakeUrls> urls = std::make_shared<FakeUrls>();
    std::shared_ptr<FakeSharing> sharing = std::make_shared<FakeSharing>();
    std::shared_ptr<RecordedDiagnostics> diagnostics = std::make_shared<RecordedDiagnostics>();

    /// Installs the ports again, after one was exchanged or the system's version changed.
    void install(SystemVersion system = {"iOS", 17, 0});

    /// Answers the request that has waited longest and lets the main queue settle.
    void answer(const std::string& data);
    /// Lets `duration` pass on the main queue and on the clock.
    void pass(std::chrono::milliseconds duration);

private:
    std::vector<std::string> faults_;
    FaultHandler before_;
};

} // namespace ombrivane::fakes
