#pragma once

#include "platform/ReachabilityMeasure.h"

#include <atomic>
#include <memory>
#include <utility>

namespace ombrivane::demo {

/// What another one measures, but while it is offline: then there is no way, and no request is sent.
class SwitchedReachability final : public ReachabilityMeasure {
public:
    explicit SwitchedReachability(std::shared_ptr<ReachabilityMeasure> measured) :
        measured_(std::move(measured)) {}

    std::optional<std::uint32_t> flags(const std::string& host) override {
        return offline_ ? std::optional<std::uint32_t>(0) : measured_->flags(host);
    }
    void setOffline(bool offline) { offline_ = offline; }

private:
    std::shared_ptr<ReachabilityMeasure> measured_;
    std::atomic<bool> offline_ = false;
};

} // namespace ombrivane::demo
