#include "session/OmbrivaneView.h"

#include "keyed/Navigator.h"
#include "services/Frame.h"
#include "session/EntryView.h"
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
        navigator.reset();
        if (ownsFlags) AppState::shared().resetNavigation();
    }

    EntryArguments arguments;
    CompletionCallback callback;
    Dismissal dismissal;
    std::shared_ptr<EntryView> entry; ///< while it is shown
    std::unique_ptr<Navigator> navigator;
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
    parts_->entry = std::make_shared<EntryView>(parts_->arguments, parts_->callback, parts_->dismissal);
    parts_->navigator = std::make_unique<Navigator>(parts_->entry);
    parts_->screens = parts_->navigator->observe(expectCall);
    parts_->navigator->start(); // in which the host may let go of this view
}

Navigator* OmbrivaneView::navigator() const { return parts_->navigator.get(); }

} // namespace ombrivane
