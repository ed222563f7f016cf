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

    /// Another message takes the place of the one that may be shown, and has the full time.
    void showAnew() {
        task_.cancel();
        show_.set(true);
    }

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
