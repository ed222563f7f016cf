// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "results/ResultsScreen.h"

namespace ombrivane::view {

/// What pages read of `ResultsScreen`.
class ResultsProperties : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ANONYMOUS
    OMBRIVANE_SCREEN(ResultsProperties, ScreenAdapter, ResultsScreen)
    OMBRIVANE_TEXT(departCity, core().departCity)
    OMBRIVANE_TEXT(destCity, core().destCity)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(routeImage, core().routeImage)
    OMBRIVANE_TEXT(headerSubtitle, core().headerSubtitle)
    OMBRIVANE_TEXT(departDateText, core().departDateText)
    OMBRIVANE_TEXT(returnDateText, core().returnDateText)
    OMBRIVANE_TEXT(addReturnDateText, core().addReturnDateText)
    OMBRIVANE_FLAG(showsReturnDate, core().showsReturnDate)
    OMBRIVANE_FLAG(showsFloatingBar, core().showsFloatingBar)
    OMBRIVANE_FLAG(showsScrollUp, core().showsScrollUp)
    OMBRIVANE_FLAG(filterIsOn, core().filterIsOn)
    OMBRIVANE_TEXT(totalLabel, core().totalLabel)
    OMBRIVANE_TEXT(total, core().total)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_TEXT(errorDetail, core().errorDetail)
    OMBRIVANE_TEXT(waitText, core().wait.waitText)
    OMBRIVANE_TEXT(waitHint, core().wait.waitHint)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_INTENT(edit, core().edit)
    OMBRIVANE_INTENT(previousDeparture, core().previousDeparture)
    OMBRIVANE_INTENT(nextDeparture, core().nextDeparture)
    OMBRIVANE_INTENT(previousReturn, core().previousReturn)
    OMBRIVANE_INTENT(nextReturn, core().nextReturn)
    OMBRIVANE_INTENT(addReturnDate, core().addReturnDate)
    OMBRIVANE_INTENT(openFilter, core().openFilter)
    OMBRIVANE_INTENT(scrollUp, core().scrollUp)
    OMBRIVANE_INTENT(proceed, core().continue_)
    OMBRIVANE_FLAG(showFilterBottomSheet, core().model().showFilterBottomSheet)
    OMBRIVANE_FLAG(showActionBar, core().model().showActionBar)
    OMBRIVANE_FLAG(showSnackBar, core().model().showSnackBar)
    OMBRIVANE_FLAG(showContinueButton, core().model().showContinueButton)
};

} // namespace ombrivane::view
