#pragma once

#include "base/Api.h"

#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace ombrivane {

/// One background thread that runs steps in their order. It starts with the first step.
class OMBRIVANE_API SerialQueue {
public:
    using Step = std::function<void()>; ///< is run once

    /// `name` shows in a debugger, as far as the system takes it.
    explicit SerialQueue(std::string name);
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    /// Waits for the step that is running and lets the others go without running them.
    ~SerialQueue();

    /// Runs `step` once, after those queued before. Any thread. A step that is left by a fault or an
    /// exception ends there.
    void async(Step step);

private:
    struct State;
    static void run(const std::shared_ptr<State>& state);

    std::string name_;
    std::shared_ptr<State> state_;
    std::thread thread_;
};

} // namespace ombrivane
