#include "keyed/Screen.h"

namespace ombrivane {

void Screen::dismiss() {
    const auto hold = shared_from_this();
    const auto host = host_.lock();
    if (host) {
        host->dismiss();
    } else if (const auto dismissal = dismissal_) {
        dismissal();
    }
}

bool Screen::takesInput() const {
    if (covered_) return false;
    if (!hosted_) return true;
    const auto host = host_.lock();
    return host && host->takesInput() && host->lendsInput();
}

} // namespace ombrivane
