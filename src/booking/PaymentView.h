#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "records/FlightBooking.h"
#include "records/KeyedRecords.h"
#include "records/PaymentSummary.h"
#include "services/PaymentProvider.h"

#include <optional>
#include <string>

namespace ombrivane {

/// What a booking session shares with its payment.
struct PaymentGiven {
    const Field<std::optional<PaymentSummary>>& paymentSummary;
    const Field<std::optional<BookingSummary>>& bookingSummary;
    const Field<bool>& bookingDetailsViewRouteIsActive;
    const Field<std::string>& errorMessage;
    const Field<bool>& showSnackBar;
    std::string buttonText;
};

/// The wallet payment: opens an order when it appears, so that the customer receives a one-time password, and
/// confirms it with the password typed. Complete and wired, but entered by no step of a session. The order's
/// answer is not kept: without a summary the screen shows sample values.
class PaymentView final : public Screen {
public:
    explicit PaymentView(PaymentGiven given);

    void appear() override { generateOrder(); }

    Binding<std::optional<PaymentSummary>> paymentSummary;
    Binding<std::optional<BookingSummary>> bookingSummary;
    Binding<bool> bookingDetailsViewRouteIsActive;
    Binding<std::string> errorMessage;
    Binding<bool> showSnackBar;
    Published<std::string> buttonText;
    Published<std::string> otpText{fields, "otpText"};
    Published<bool> showProgressView{fields, "showProgressView"};

    Derived<std::string> title;
    Derived<std::string> route;
    Derived<std::string> date;
    Derived<std::string> referenceLabel;
    Derived<std::string> reference;
    Derived<std::string> amountLabel;
    Derived<std::string> amount;
    Derived<std::string> otpPlaceholder;
    Action<std::string> typeOtp;
    Action<> button;

private:
    void generateOrder();
    void confirmOrder();
    void fail(const std::optional<Error>& error);
    std::string bookingReferenceID() const;
    std::string transactionID() const;

    PaymentProvider paymentProvider_;
};

} // namespace ombrivane
