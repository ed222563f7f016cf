#pragma once

#include "items/OmbrivaneSession.h"
#include "platform/AdjustableClock.h"
#include "platform/Platform.h"
#include "script/Script.h"

#include <chrono>
#include <functional>
#include <istream>
#include <memory>

namespace ombrivane::kit {

/// Plays scripts over the pages of a wallet's own window: a customer whose taps are lines of text
/// (`docs/journeys.md`), while bindings, slides and pictures run as they do in a hand.
///
/// One at a time, on the thread of the application object. Make it before the component opens, and drop the
/// component before it goes: it takes its ports away again.
class PagePlayer {
public:
    /// Installs `ports` with a clock, a photo library, a reachability, and what opens and shares addresses
    /// that scripts decide about, and with diagnostics that scripts wait for. @param ports of `qtPlatform`;
    /// @throws std::invalid_argument where the main queue is another's, since its timers cannot be moved on
    explicit PagePlayer(Platform ports);
    PagePlayer(const PagePlayer&) = delete;
    PagePlayer& operator=(const PagePlayer&) = delete;
    /// Ends what is under way, as `Platform::endNetwork`, and leaves no platform installed.
    ~PagePlayer();

    /// Where the clock of the component stands from here on: where that of the sandbox does.
    void startAt(Date now) { clock_->startAt(now); }

    /// A callback for the session that tells the script of each call (`wait-event callback`), and calls
    /// `wallet`, the callback under test. It may be called after the player has gone.
    CompletionCallback heardBy(CompletionCallback wallet);

    /// Plays `lines` over the component in `session`; `open`, `destroy` and `restore` in them are its `open`,
    /// `drop` and `restoreState`.
    /// The wallet's page has been made, and need not be open yet; where it goes meanwhile, with its session,
    /// nothing is open for the lines that are left. Prints each event and, where the script
    /// stops early, why.
    journey::Ending play(std::istream& lines, view::OmbrivaneSession& session);

    /// Turns the event loop until `done` holds or `limit` has passed. @return whether it held
    static bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);

private:
    /// Shared with what the component may still call: its ports and its callback.
    std::shared_ptr<journey::EventLog> log_ = std::make_shared<journey::EventLog>([] {});
    std::shared_ptr<AdjustableClock> clock_ = std::make_shared<AdjustableClock>();
    std::shared_ptr<journey::ScriptedPhotos> photos_ = std::make_shared<journey::ScriptedPhotos>();
    std::shared_ptr<journey::ScriptedReachability> reachability_ =
        std::make_shared<journey::ScriptedReachability>();
};

} // namespace ombrivane::kit
