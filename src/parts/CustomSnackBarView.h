#pragma once

#include "keyed/Field.h"
#include "platform/Platform.h"

#include <chrono>

namespace ombrivane {

/// How long a message stays, and how long a screen that failed stays under it.
inline constexpr std::chrono::milliseconds messageDuration{3000};

/// The bar with one message that hides by itself. It has no control: it stays for the full time unless its
/// owner clears the flag, which leaves no work behind.
class CustomSnackBarView {
public:
    explicit CustomSnackBarView(Field<bool>& show) : show_(show) {}
    CustomSnackBarView(const CustomSnackBarView&) = delete;
    CustomSnackBarView& operator=(const CustomSnackBarView&) = delete;

    /// The bar's screen is shown: a message that it still has stays for the full time from now on.
    void appear() { follow(); }
    /// The bar's screen is covered or gone, and the message stays as it is.
    void disappear() { task_.cancel(); }

private:
    void follow() {
        if (!show_.get()) {
            task_.cancel();
        } else if (!task_.isPending()) {
            task_ = mainQueue().after(messageDuration, [this] { show_.set(false); });
        }
    }

    Field<bool>& show_;
    WorkItem task_;
    Subscription shown_ = show_.observe([this] { follow(); });
};

} // namespace ombrivane
