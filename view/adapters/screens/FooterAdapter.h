// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "parts/FooterView.h"

namespace ombrivane::view {

/// What pages read of `FooterView`.
class FooterAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FooterAdapter, ScreenAdapter, FooterView)
    OMBRIVANE_TEXT(poweredBy, core().poweredBy)
    OMBRIVANE_TEXT(mobile, core().mobile)
    OMBRIVANE_TEXT(landLine, core().landLine)
    OMBRIVANE_INTENT(tapMark, core().tapMark)
    OMBRIVANE_INTENT(callMobile, core().callMobile)
    OMBRIVANE_ENABLED(callMobile, core().callMobile)
    OMBRIVANE_INTENT(openViber, core().openViber)
    OMBRIVANE_ENABLED(openViber, core().openViber)
    OMBRIVANE_INTENT(openWhatsapp, core().openWhatsapp)
    OMBRIVANE_ENABLED(openWhatsapp, core().openWhatsapp)
    OMBRIVANE_INTENT(callLandLine, core().callLandLine)
    OMBRIVANE_ENABLED(callLandLine, core().callLandLine)
};

} // namespace ombrivane::view
