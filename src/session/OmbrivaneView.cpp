#include "session/OmbrivaneView.h"

#include "events/HostEvents.h"
#include "keyed/Navigator.h"
#include "recording/Recorder.h"
#include "services/Frame.h"
#include "session/EntryView.h"
#include "session/KeptState.h"

#include <utility>

namespace ombrivane {

struct OmbrivaneView::Parts {
    /// Every screen leaves, and takes the flags that kept it on the stack along: they are those of the
    /// process, and would show it in the next view. The screens go first, so that none comes into view by
    /// that.
    void leave() {
        const auto leaving = std::exchange(entry, nullptr);
        if (!leaving) return;
        if (!kept) kept = leaving->giveBack();
        const bool ownsFlags = leaving->drop();
        if (entry) return; // whoever heard of it has shown the view again
        screens = {};
        if (recorder) recorder->letGo();
        navigator.reset();
        if (ownsFlags) EntryView::clearStack();
    }

    /// What was given by `restoreState` and no opening has come to; empty where there is none.
    std::string unrestored() const {
        const bool waits = entry ? entry->hasYetToTakeUp() : kept.has_value();
        return waits ? keptText : std::string();
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
            Event{.kind = EventKind::screenShown, .opening = entry->opening(), .screen = name});
    }

    EntryArguments arguments;
    CompletionCallback callback;
    Dismissal dismissal;
    bool records = false;
    std::unique_ptr<Recorder> recorder; ///< of the opening that was shown last
    std::optional<KeptState> kept;      ///< for the next time that it is shown
    std::string keptText;               ///< as it was given last
    std::shared_ptr<EntryView> entry;   ///< while it is shown
    std::unique_ptr<Navigator> navigator;
    std::string shown;    ///< the name of what lies on top
    Subscription screens; ///< to what comes into view
};

OmbrivaneView::OmbrivaneView(std::string clientId, std::string clientSecret,
                             std::optional<std::string> userType, std::optional<double> walletBalance,
                             std::optional<std::string> phone, std::optional<std::string> environment,
                             CompletionCallback callback) :
    parts_(std::make_shared<Parts>()) {
    parts_->arguments = {std::move(clientId),
                         std::move(clientSecret),
                         std::move(userType),
                         walletBalance,
                         std::move(phone),
                         std::move(environment)};
    parts_->callback = std::move(callback);
}

OmbrivaneView::~OmbrivaneView() { parts_->leave(); }

void OmbrivaneView::onClose(std::function<void()> dismiss, std::function<void()> dismissFrontmost) {
    if (!dismissFrontmost) dismissFrontmost = dismiss;
    parts_->dismissal = {std::move(dismiss), std::move(dismissFrontmost)};
}

void OmbrivaneView::show() {
    const auto parts = parts_;
    parts->leave();
    // The host has heard of that, and may have let go of this view or shown it by itself.
    if (parts.use_count() == 1 || parts->entry) return;
    parts->shown.clear();
    const std::string form = parts->kept ? parts->keptText : KeptState::save(nullptr);
    parts->entry = std::make_shared<EntryView>(parts->arguments, parts->callback, parts->dismissal);
    if (parts->kept) parts->entry->takeUp(*std::exchange(parts->kept, std::nullopt));
    parts->navigator = std::make_unique<Navigator>(parts->entry);
    if (parts->records) parts->recorder = std::make_unique<Recorder>(*parts->navigator, form);
    parts->screens = parts->navigator->observe([shown = parts.get()] { shown->cameIntoView(); });
    parts->navigator->start(); // in which it may do so too
}

std::string OmbrivaneView::saveState() const {
    const std::string unrestored = parts_->unrestored();
    return unrestored.empty() ? KeptState::save(parts_->navigator.get()) : unrestored;
}

std::string OmbrivaneView::unrestoredState() const { return parts_->unrestored(); }

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
