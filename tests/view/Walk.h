#pragma once

#include "EventLog.h"
#include "Script.h"
#include "ScriptedPorts.h"
#include "Window.h"
#include "platform/AdjustableClock.h"

#include <istream>
#include <map>
#include <memory>
#include <string>

namespace ombrivane::view {

/// The ports of a customer who is played by a script: a clock that stands where the booking service's stands,
/// pictures that the script picks. As long as it lives they stand in for the device's own.
class WalkPorts {
public:
    WalkPorts();
    WalkPorts(const WalkPorts&) = delete;
    WalkPorts& operator=(const WalkPorts&) = delete;
    ~WalkPorts();

    std::shared_ptr<journey::EventLog> log = std::make_shared<journey::EventLog>([] {});
    std::shared_ptr<AdjustableClock> clock = std::make_shared<AdjustableClock>();
    std::shared_ptr<journey::ScriptedPhotos> photos = std::make_shared<journey::ScriptedPhotos>();
    std::shared_ptr<journey::ScriptedReachability> reachability =
        std::make_shared<journey::ScriptedReachability>();

private:
    Platform device_;
};

/// Commands of a test's own script besides the common ones.
using Commands = std::map<std::string, journey::Script::Command>;

/// Plays a script against the pages of `window`; `look NAME` in it calls `look`. Adds a failure where the
/// script stops early.
void walk(WalkPorts& ports, Window& window, const std::string& file,
          const std::function<void(const std::string& name)>& look, const Commands& commands = {});
/// The same for the lines of a script.
void walk(WalkPorts& ports, Window& window, std::istream& lines,
          const std::function<void(const std::string& name)>& look, const Commands& commands = {});

} // namespace ombrivane::view
