#pragma once

#include "base/Json.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace ombrivane {

class Screen;

/// What a customer does, told to whoever records it, before it takes effect. What an action does in its turn
/// is none. Those of the process. Main thread.
class Deeds {
public:
    /// The screen whose control it is, the key of the action, and the arguments; the gesture for back has the
    /// topmost screen and no key. All of it is good until the listener returns.
    using Listener =
        std::function<void(const Screen& screen, std::string_view key, const std::vector<Json>& arguments)>;

    /// Listens while what is returned lives; what it throws ends there.
    [[nodiscard]] static std::shared_ptr<const void> listen(Listener listener);

    /// Tells every listener.
    static void tell(const Screen& screen, std::string_view key, const std::vector<Json>& arguments = {});
    /// Whether a deed is to be told: somebody listens, and no action is under way.
    static bool areHeard();
};

/// While one lives an action is under way.
class ActionUnderWay {
public:
    ActionUnderWay();
    ~ActionUnderWay();
    ActionUnderWay(const ActionUnderWay&) = delete;
    ActionUnderWay& operator=(const ActionUnderWay&) = delete;
};

} // namespace ombrivane
