#pragma once

#include "fakes/TestData.h"
#include "fakes/World.h"
#include "services/ServiceHosts.h"
#include "state/AppState.h"

#include <string>

namespace ombrivane {

/// A session that has its token, in front of a network that the test answers for.
class ServiceFixture : public testing::Test {
public:
    ServiceFixture() {
        ServiceHosts::use({"https://production.example", "https://test.example"});
        world.localization->zone = "Asia/Kathmandu";
        auto& state = AppState::shared();
        state.update("T0KEN", "customer", std::nullopt, std::nullopt);
        state.environment = "test";
    }
    ~ServiceFixture() override { ServiceHosts::use(before_); }

    fakes::World world;

private:
    ServiceHosts before_ = ServiceHosts::current();
};

} // namespace ombrivane
