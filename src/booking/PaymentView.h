#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "records/FlightBooking.h"
#include "records/KeyedRecords.h"
#include "records/PaymentSummary.h"
#include "services/PaymentProvider.h"
#include "words/Caption.h"
#include "words/Spoken.h"

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
    Text buttonText;
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
    Published<std::string> buttonText{fields, "buttonText"};
    Published<std::string> otpText{fields, "otpText"};
    Published<bool> showProgressView{fields, "showProgressView"};

    Caption title{fields, "title", Text::sessionTitle};
    Derived<std::string> route{fields, "route", [this] { return routeText(); }};
    Derived<std::string> date{fields, "date", [this] { return dateText(); }};
    Caption referenceLabel{fields, "referenceLabel", Text::paymentReference};
    Derived<std::string> reference{fields, "reference", [this] { return referenceText(); }};
    Caption amountLabel{fields, "amountLabel", Text::paymentAmount};
    Derived<std::string> amount{fields, "amount", [this] { return amountText(); }};
    Caption otpPlaceholder{fields, "otpPlaceholder", Text::paymentEnterOtp};
    Action<std::string> typeOtp{*this,
                                "typeOtp",
                                [this](const std::string& text) { otpText = text; },
                                [this] { return !showProgressView; }};
    Action<> button{*this, "button", [this] { confirmOrder(); }, [this] { return !showProgressView; }};

private:
    void generateOrder();
    void confirmOrder();
    void fail(const std::optional<Error>& error);
    std::string routeText() const;
    std::string dateText() const;
    std::string referenceText() const;
    std::string amountText() const;
    std::string bookingReferenceID() const;
    std::string transactionID() const;

    SpokenField buttonWords_;
    PaymentProvider paymentProvider_;
};

} // namespace ombrivane
