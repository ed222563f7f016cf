#include "session/OmbrivaneView.h"

#include "events/HostEvents.h"
#include "keyed/Navigator.h"
#include "recording/Recorder.h"
#include "search/MainViewModel.h"
#include "services/Frame.h"
#include "session/EntryView.h"
#include "session/KeptState.h"
#include "state/AppState.h"

#include <utility>

namespace ombrivane {

struct OmbrivaneView::Parts {
    ~Parts() { leave(); }

    /// Every screen leaves, and takes the flags that kept it on the stack along: they are those of the
    /// process, and would show it in the next view. The screens go first, so that none comes into view by
    /// that.
    void leave() {
        const auto leaving = std::exchange(entry, nullptr);
        if (!leaving) return;
        const bool ownsFlags = leaving->drop();
        screens = {};
        if (recorder) recorder->letGo();
        navigator.reset();
        if (!ownsFlags) return;
        AppState::shared().resetNavigation();
        MainViewModel::shared().closeSheets();
    }

    void cameIntoView() {
        if (!entry || !entry->isOpen()) return; // an opening that has ended shows nothing more
        expectCall();
        // The root is a frame: what is seen there is its content.
        const auto lying = Navigator::withParts(navigator->top());
        const bool isFrame = navigator->stack().size() == 1 && lying.size() > 1;
        const std::string name(lying[isFrame ? 1 : 0]->name());
        if (std::exchange(shown, name) == name) return;
        HostEvents::shared().tell(
            Event{.kind = EventKind::screenShown, .opening = HostEvents::shared().opening(), .screen = name});
    }

    EntryArguments arguments;
    CompletionCallback callback;
    Dismissal dismissal;
    bool records = false;
    std::unique_ptr<Recorder> recorder; ///< of the opening that was shown last
    std::optional<KeptState> kept;      ///< for the next time that it is shown
    std::string keptText;               ///< the same as it was given
    std::shared_ptr<EntryView> entry;   ///< while it is shown
    std::unique_ptr<Navigator> navigator;
    std::string shown;    ///< the name of what lies on top
    Subscription screens; ///< to what comes into view
};

OmbrivaneView::OmbrivaneView(std::string clientId, std::string clientSecret,
                             std::optional<std::string> userType, std::optional<double> walletBalance,
                             std::optional<std::string> phone, std::optional<std::string> environment,
                             CompletionCallback callback) :
    parts_(std::make_unique<Parts>()) {
    parts_->arguments = {std::move(clientId),
                         std::move(clientSecret),
                         std::move(userType),
                         walletBalance,
                         std::move(phone),
                         std::move(environment)};
    parts_->callback = std::move(callback);
}

OmbrivaneView::~OmbrivaneView() = default;

void OmbrivaneView::onClose(std::function<void()> dismiss, std::function<void()> dismissFrontmost) {
    if (!dismissFrontmost) dismissFrontmost = dismiss;
    parts_->dismissal = {std::move(dismiss), std::move(dismissFrontmost)};
}

void OmbrivaneView::show() {
    parts_->leave();
    parts_->shown.clear();
    const std::string form = parts_->kept ? parts_->keptText : KeptState::save(nullptr);
    parts_->entry = std::make_shared<EntryView>(parts_->arguments, parts_->callback, parts_->dismissal);
    if (parts_->kept) parts_->entry->takeUp(*std::exchange(parts_->kept, std::nullopt));
    parts_->navigator = std::make_unique<Navigator>(parts_->entry);
    if (parts_->records) parts_->recorder = std::make_unique<Recorder>(*parts_->navigator, form);
    parts_->screens = parts_->navigator->observe([parts = parts_.get()] { parts->cameIntoView(); });
    parts_->navigator->start(); // in which the host may let go of this view
}

std::string OmbrivaneView::saveState() const { return KeptState::save(parts_->navigator.get()); }

bool OmbrivaneView::restoreState(const std::string& state) {
    auto kept = KeptState::read(state);
    const bool isGood = kept.has_value();
    if (isGood) {
        parts_->kept = std::move(kept);
        parts_->keptText = state;
    }
    return isGood;
}

bool OmbrivaneView::isState(const std::string& state) { return KeptState::read(state).has_value(); }

void OmbrivaneView::forget() { forgetCustomer(); }

void OmbrivaneView::record() { parts_->records = true; }

std::string OmbrivaneView::recording() const {
    return parts_->recorder ? parts_->recorder->journey() : std::string();
}

Navigator* OmbrivaneView::navigator() const { return parts_->navigator.get(); }

} // namespace ombrivane
