#include "adapters/SessionAdapter.h"

namespace ombrivane::view {

PaymentAdapter* SessionAdapter::payment() {
    if (!core().showPaymentView) return nullptr;
    if (!payment_) payment_ = std::make_unique<PaymentAdapter>(core().payment());
    return payment_.get();
}

} // namespace ombrivane::view
