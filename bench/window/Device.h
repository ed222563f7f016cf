#pragma once

#include "platform/AdjustableClock.h"
#include "sandbox/Sandbox.h"

#include <memory>

namespace ombrivane::bench {

/// The device behind Qt with a booking service in this process, both on the same standing clock. As long as
/// it lives the component runs on them.
class Device {
public:
    Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;
    ~Device();

    sandbox::Sandbox& service() { return service_; }
    AdjustableClock& clock() { return *clock_; }

private:
    sandbox::Sandbox service_;
    std::shared_ptr<AdjustableClock> clock_ = std::make_shared<AdjustableClock>();
};

} // namespace ombrivane::bench
