// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "adapters/screens/TicketFlightValue.h"
#include "adapters/screens/TicketPassengerValue.h"
#include "booking/BookingConfirmationView.h"

namespace ombrivane::view {

/// What pages read of `BookingConfirmationView`.
class ConfirmationAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(ConfirmationAdapter, ScreenAdapter, BookingConfirmationView)
    OMBRIVANE_FLAG(isLoading, core().isLoading)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
    OMBRIVANE_TEXT(downloadText, core().downloadText)
    OMBRIVANE_VALUES(TicketFlightValue, flightBlocks, core().flightBlocks)
    OMBRIVANE_VALUES(TicketPassengerValue, passengerBlocks, core().passengerBlocks)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_INTENT(downloadTicket, core().downloadTicket)
    OMBRIVANE_INTENT(share, core().share)
    OMBRIVANE_TEXT(waitText, core().wait.waitText)
    OMBRIVANE_TEXT(waitHint, core().wait.waitHint)
};

} // namespace ombrivane::view
