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
    /// Whether what is shown inside takes input: not under progress or expiry.
    Q_PROPERTY(bool lendsInput READ lendsInput NOTIFY lendsInputChanged FINAL)
    Q_PROPERTY(ombrivane::view::PaymentAdapter* payment READ payment NOTIFY paymentChanged FINAL)
    OMBRIVANE_PART(FlightInformationAdapter, information, core().information())
    OMBRIVANE_PART(BaggageAdapter, baggage, core().baggage())
    OMBRIVANE_PART(ContactListAdapter, contact, core().contact())

public:
    using SessionProperties::SessionProperties;

    bool lendsInput() const { return screen()->lendsInput(); }
    Q_SIGNAL void lendsInputChanged();
    PaymentAdapter* payment();
    Q_SIGNAL void paymentChanged();

private:
    Subscription lendsInputWatch_ = watch(core().phaseName, [this] { emit lendsInputChanged(); });
    std::unique_ptr<PaymentAdapter> payment_;
    Subscription paymentWatch_ = watch(core().showPaymentView, [this] { emit paymentChanged(); });
};

} // namespace ombrivane::view
