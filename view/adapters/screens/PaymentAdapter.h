// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "booking/PaymentView.h"

namespace ombrivane::view {

/// What pages read of `PaymentView`.
class PaymentAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(PaymentAdapter, ScreenAdapter, PaymentView)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_TEXT(otpText, core().otpText)
    OMBRIVANE_FLAG(showProgressView, core().showProgressView)
    OMBRIVANE_TEXT(otpError, core().otpError)
    OMBRIVANE_FLAG(hasOrder, core().hasOrder)
    OMBRIVANE_TEXT(route, core().route)
    OMBRIVANE_TEXT(date, core().date)
    OMBRIVANE_TEXT(referenceLabel, core().referenceLabel)
    OMBRIVANE_TEXT(reference, core().reference)
    OMBRIVANE_TEXT(amountLabel, core().amountLabel)
    OMBRIVANE_TEXT(amount, core().amount)
    OMBRIVANE_TEXT(otpPlaceholder, core().otpPlaceholder)
    OMBRIVANE_INPUT(typeOtp, core().typeOtp)
    OMBRIVANE_INTENT(button, core().button)
    OMBRIVANE_TEXT(waitText, core().wait.waitText)
    OMBRIVANE_TEXT(waitHint, core().wait.waitHint)
};

} // namespace ombrivane::view
