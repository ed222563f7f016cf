#pragma once

#include "Device.h"
#include "EventLog.h"
#include "ScriptedPorts.h"
#include "items/OmbrivaneSession.h"
#include "platform/Platform.h"

#include <functional>
#include <memory>
#include <string>

namespace ombrivane::bench {

/// A customer who is played by a script, without a window; the pictures that they pick come from the script.
class Journey {
public:
    explicit Journey(Device& device);
    Journey(const Journey&) = delete;
    Journey& operator=(const Journey&) = delete;
    ~Journey();

    /// Plays `file`; each `look NAME` in it calls `look` with the topmost screen. @throws std::runtime_error
    /// when the script stops early
    void
    play(const std::string& file,
         const std::function<void(const std::string& name, const std::shared_ptr<Screen>& screen)>& look);

private:
    Device& device_;
    Platform former_;
    journey::EventLog log_{[] {}};
    std::shared_ptr<journey::ScriptedPhotos> photos_ = std::make_shared<journey::ScriptedPhotos>();
    std::shared_ptr<journey::ScriptedReachability> reachability_ =
        std::make_shared<journey::ScriptedReachability>();
    view::OmbrivaneSession session_;
};

} // namespace ombrivane::bench
