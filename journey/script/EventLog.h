#pragma once

#include "state/CompletionCallback.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// What a callback was given, as the event "callback": {"dictionary", "error"}, either of them null.
Json callbackEvent(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error);

/// What the program prints: one JSON object a line. Events are kept until the script waits for them. Any
/// thread.
class EventLog {
public:
    /// @param wake called after each event, on its thread
    explicit EventLog(std::function<void()> wake) : wake_(std::move(wake)) {}

    /// Prints what a command asked for.
    void answer(const Json& line);
    /// Prints an event, whose name is its "event", and keeps it until a script waits for it.
    void event(Json line);

    /// Takes the oldest event of that name that was not taken yet and that holds `wanted`: of an object all
    /// members that `wanted` has, at any depth. False when there is none.
    bool take(const std::string& name, const Json& wanted);

    /// The events of that name that were not taken yet, as an array.
    Json waiting(const std::string& name);

private:
    void print(const Json& line);

    std::mutex mutex_;
    std::vector<Json> waiting_;
    std::function<void()> wake_;
};

} // namespace ombrivane::journey
