#pragma once

#include "base/Api.h"
#include "state/CompletionCallback.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

class Navigator;

/// The component: a host creates it with its credentials and shows it. Dropping it takes every screen away;
/// after that the callback hears of one thing only, the hand-over of a reservation that was under way.
///
/// The host passes all seven arguments; those that it does not have as `std::nullopt`. Main thread.
class OMBRIVANE_API OmbrivaneView {
public:
    /// @param clientId who the wallet is to the booking service
    /// @param clientSecret the secret to it; goes to the service and nowhere else
    /// @param userType "customer" when absent
    /// @param walletBalance whole units of the service's currency, finite; absent means no limit
    /// @param phone the customer's telephone number
    /// @param environment exactly "test", which absent means too, or anything else for production
    /// @param callback see `CompletionCallback`
    OmbrivaneView(std::string clientId, std::string clientSecret, std::optional<std::string> userType,
                  std::optional<double> walletBalance, std::optional<std::string> phone,
                  std::optional<std::string> environment, CompletionCallback callback);
    ~OmbrivaneView();
    OmbrivaneView(const OmbrivaneView&) = delete;
    OmbrivaneView& operator=(const OmbrivaneView&) = delete;

    /// Called, as a step of the main queue, when the component wants to be taken off the screen. Below iOS 15
    /// it is the frontmost view of the first window that has to go: `dismissFrontmost` is called there, where
    /// it is given. Set it before the view is shown.
    void onClose(std::function<void()> dismiss, std::function<void()> dismissFrontmost = nullptr);

    /// The view comes on screen: the bootstrap starts. Shown again, it starts again. The callback may come
    /// before this returns: below iOS 14, and where there is no connection. Like every call of the host, it
    /// may drop the view, show it again or show another one.
    void show();

    /// Where the customer stands in the search, for `restoreState` of a later process: the form, the tab, and
    /// whether the offers were there. Opaque, UTF-8, of some hundred bytes; without token, traveller or
    /// picture. The component keeps it nowhere. Until the search has come it is what `restoreState` took.
    std::string saveState() const;
    /// Takes up what `saveState` gave: the next `show` that gets its token comes to the form as it stood, and
    /// searches again where the offers were there. Days that have gone by meanwhile are asked for anew.
    /// @return false where `state` is another version's or damaged; nothing changes then
    bool restoreState(const std::string& state);
    /// What `restoreState` took and no opening has come to; empty where there is nothing like that.
    std::string unrestoredState() const;
    /// Whether `restoreState` would take it.
    static bool isState(const std::string& state);
    /// Another customer may come: empties what the process knows of the last one (token, balance, telephone
    /// number, form, nationality). Travellers and pictures go with their view. A reservation that is under
    /// way is finished with the token that it began with. No view may be shown.
    static void forget();

    /// Records each opening from the next `show` on, for whoever looks into a customer's trouble: what the
    /// customer does, how long it takes and what becomes of every request. Off unless this is called.
    void record();
    /// The recording of the opening that was shown last, as a journey that plays again against the sandbox
    /// (docs/journeys.md); empty where nothing was recorded. What a customer typed, and days of birth and of
    /// expiry, are replaced by others of the same shape, and no picture, token or answer is in it. The
    /// component keeps it nowhere else; also good after `closed`.
    std::string recording() const;

    /// The stack of screens; empty until the view is shown.
    Navigator* navigator() const;

private:
    struct Parts;
    std::shared_ptr<Parts> parts_;
};

} // namespace ombrivane
