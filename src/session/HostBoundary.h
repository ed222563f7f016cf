#pragma once

#include "events/Event.h"
#include "state/CompletionCallback.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace ombrivane {

/// The only place at which the component speaks to its host and closes. Closing is always a step of the main
/// queue of its own; a host that dropped the view meanwhile is not asked to take it away.
///
/// | a screen passes                   | the host gets | the component |
/// |-----------------------------------|---------------|---------------|
/// | an error                          | the error     | closes        |
/// | neither dictionary nor error      | nothing       | closes        |
/// | a dictionary with "exit" true     | it, unchanged | closes        |
/// | a dictionary with "exit" false    | it, unchanged | stays         |
///
/// Once the component has closed or its view was dropped nothing more is passed on, with one exception: a
/// dictionary with "exit" true hands over a reservation that was made, and must reach the host whatever
/// happened meanwhile. It goes to `Reservations` as well, before the host is called. Any thread; no lock is
/// held while the host is called. What its callback throws ends there, and is told to diagnostics.
class HostBoundary : public std::enable_shared_from_this<HostBoundary> {
public:
    /// @param close takes the component off the screen; called on the main queue
    HostBoundary(CompletionCallback callback, std::function<void()> close) :
        callback_(std::move(callback)), close_(std::move(close)) {}

    /// What names the opening, for the event of its end; without a name nothing is told. Before it is used.
    void setOpening(std::string opening) { opening_ = std::move(opening); }
    const std::string& opening() const { return opening_; }

    /// What screens call as their completion callback. It keeps this boundary alive.
    CompletionCallback internalCallback();

    void receive(std::optional<Dictionary> dictionary, std::optional<Error> error);

    /// Whether nothing has ended the opening yet.
    bool isOpen();

    /// The host has dropped the view: from here on nothing is closed.
    void drop();

private:
    enum class State { open, closed, dropped };

    bool endUse(State ended, ClosedBy who, const std::optional<Error>& error = std::nullopt);
    bool isDropped();
    void closeIf(bool open);
    void callHost(std::optional<Dictionary> dictionary, std::optional<Error> error);

    std::mutex mutex_;
    State state_ = State::open;
    CompletionCallback callback_;
    std::function<void()> close_;
    std::string opening_;
};

} // namespace ombrivane
