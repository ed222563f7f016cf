// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "booking/BookingSession.h"

namespace ombrivane::view {

/// What pages read of `BookingSession`.
class SessionProperties : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_SCREEN(SessionProperties, ScreenAdapter, BookingSession)
    OMBRIVANE_TEXT(departLocation, core().departLocation)
    OMBRIVANE_TEXT(destLocation, core().destLocation)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_TEXT(appBarTitle, core().appBarTitle)
    OMBRIVANE_FLAG(showSessionExpiredAlert, core().showSessionExpiredAlert)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_FLAG(showPaymentView, core().showPaymentView)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(progressMessage, core().progressMessage)
    OMBRIVANE_TEXT(clockText, core().clockText)
    OMBRIVANE_TEXT(clockLabel, core().clockLabel)
    OMBRIVANE_FIELD(double, clockPart, core().clockPart)
    OMBRIVANE_FLAG(isLastMinute, core().isLastMinute)
    OMBRIVANE_TEXT(totalLabel, core().totalLabel)
    OMBRIVANE_TEXT(total, core().total)
    OMBRIVANE_TEXT(formerTotal, core().formerTotal)
    OMBRIVANE_TEXT(fareNotice, core().fareNotice)
    OMBRIVANE_FLAG(fareFell, core().fareFell)
    OMBRIVANE_FLAG(showsFoot, core().showsFoot)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_TEXT(expiredTitle, core().expiredTitle)
    OMBRIVANE_TEXT(expiredText, core().expiredText)
    OMBRIVANE_TEXT(expiredButtonText, core().expiredButtonText)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_ENABLED(back, core().back)
    OMBRIVANE_INTENT(proceed, core().continue_)
    OMBRIVANE_ENABLED(proceed, core().continue_)
    OMBRIVANE_INTENT(checkLatestFares, core().checkLatestFares)
    OMBRIVANE_TEXT(waitText, core().wait.waitText)
    OMBRIVANE_TEXT(waitHint, core().wait.waitHint)
};

} // namespace ombrivane::view
