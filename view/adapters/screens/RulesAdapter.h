// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ParagraphsModel.h"
#include "adapters/ScreenAdapter.h"
#include "booking/RulesAndRegulationView.h"

namespace ombrivane::view {

/// What pages read of `RulesAndRegulationView`.
class RulesAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(RulesAdapter, ScreenAdapter, RulesAndRegulationView)
    OMBRIVANE_FLAG(showSnackBar, core().showSnackBar)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_PARAGRAPHS(paragraphs, core().paragraphs)
    OMBRIVANE_TEXT(cancelText, core().cancelText)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_TEXT(waitText, core().wait.waitText)
    OMBRIVANE_TEXT(waitHint, core().wait.waitHint)
    OMBRIVANE_AMOUNT(measured, core().measured)
    OMBRIVANE_INTENT(cancel, core().cancel)
    OMBRIVANE_ENABLED(cancel, core().cancel)
    OMBRIVANE_INTENT(proceed, core().continue_)
    OMBRIVANE_ENABLED(proceed, core().continue_)
};

} // namespace ombrivane::view
