#pragma once

#include "keyed/Field.h"
#include "keyed/KeyedScreen.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "services/AuthenticationProvider.h"
#include "session/HostBoundary.h"
#include "session/KeptState.h"
#include "state/CompletionCallback.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace ombrivane {

class MainView;

/// What the host passes in.
struct EntryArguments {
    std::string clientId;
    std::string clientSecret;
    std::optional<std::string> userType;
    std::optional<double> walletBalance;
    std::optional<std::string> phone;
    std::optional<std::string> environment;
};

/// How the host takes the component off its screen.
struct Dismissal {
    /// Ends the presentation of the view.
    std::function<void()> dismiss;
    /// Dismisses the frontmost view of the application's first window; used below iOS 15.
    std::function<void()> dismissFrontmost;
};

/// The root of all screens: a placeholder until the bootstrap has finished, then a thin frame around
/// `MainView`. The bootstrap runs once, when the view comes on screen, and not when the customer comes back
/// to the search; a failure reaches the host and closes the component.
class EntryView final : public Screen {
private:
    EntryArguments arguments_;
    std::shared_ptr<HostBoundary> boundary_;

public:
    EntryView(EntryArguments arguments, CompletionCallback callback, Dismissal dismissal);
    ~EntryView() override { drop(); }

    /// The host drops the view: it is called no more, but for the hand-over of a reservation under way.
    /// @return whether it is the view that was shown last, whose navigation flags those of the process are
    bool drop();

    /// Whether the component has neither closed nor been dropped.
    bool isOpen() const { return boundary_->isOpen(); }

    void appear() override;

    /// What names the opening in the events of the host; empty before it appears.
    const std::string& opening() const { return boundary_->opening(); }

    /// What the customer left earlier; taken up when the search comes. Before it appears.
    void takeUp(KeptState kept) { kept_ = std::move(kept); }
    /// Whether it was given what it has not taken up.
    bool hasYetToTakeUp() const { return kept_.has_value(); }
    /// Gives that back: an opening that failed leaves it to the next one.
    std::optional<KeptState> giveBack() { return std::exchange(kept_, std::nullopt); }

    /// Lowers every flag of the process that brings a screen or a sheet into view.
    static void clearStack();

    /// The search, made before the bootstrap, so that its page can be made while the token is on its way. It
    /// comes on screen as `view`.
    const std::shared_ptr<MainView> search;
    /// The content, once the bootstrap has finished.
    Published<std::shared_ptr<Screen>> view{fields, "view"};
    Part content{*this, "view", [this] { return view.get(); }};

private:
    void authenticated(std::optional<Authentication> authentication);

    std::optional<KeptState> kept_;
    bool bootstrapped_ = false;
    bool dropped_ = false;
};

} // namespace ombrivane
