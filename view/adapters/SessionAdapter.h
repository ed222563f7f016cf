#pragma once

#include "adapters/screens/BaggageAdapter.h"
#include "adapters/screens/ContactListAdapter.h"
#include "adapters/screens/FlightInformationAdapter.h"
#include "adapters/screens/PaymentAdapter.h"
#include "adapters/screens/SessionProperties.h"

#include <memory>

namespace ombrivane::view {

/// A booking session of either kind. By hand, since the page keeps its cards while the payment stands in
/// their place, and makes the payment's only then.
class SessionAdapter : public ombrivane::view::SessionProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::PaymentAdapter* payment READ payment NOTIFY paymentChanged FINAL)
    OMBRIVANE_PART(FlightInformationAdapter, information, core().information())
    OMBRIVANE_PART(BaggageAdapter, baggage, core().baggage())
    OMBRIVANE_PART(ContactListAdapter, contact, core().contact())

public:
    using SessionProperties::SessionProperties;

    PaymentAdapter* payment();
    Q_SIGNAL void paymentChanged();

private:
    std::unique_ptr<PaymentAdapter> payment_;
    Subscription paymentWatch_ = watch(core().showPaymentView, [this] { emit paymentChanged(); });
};

} // namespace ombrivane::view
