#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "parts/Wait.h"
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
    /// Why the password was refused, in the service's words, until another one is typed or sent.
    Published<std::string> otpError{fields, "otpError"};
    /// Whether what is shown of the order is its own and no sample.
    Derived<bool> hasOrder{fields, "hasOrder", [this] { return paymentSummary->has_value(); }};

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
                                [this](const std::string& text) { type(text); },
                                [this] { return !showProgressView; }};
    Action<> button{*this, "button", [this] { confirmOrder(); }, [this] { return !showProgressView; }};

private:
    void type(const std::string& text);
    void generateOrder();
    void confirmOrder();
    void fail(const std::optional<Error>& error);
    std::string routeText() const;
    std::string dateText() const;
    std::string referenceText() const;
    std::string amountText() const;
    std::string bookingReferenceID() const;
    std::string transactionID() const;

    std::optional<Awaited> awaited() const;

    Fields unkeyed_;
    Published<bool> isConfirming_{unkeyed_, "isConfirming"}; ///< the order that was opened
    SpokenField buttonWords_;
    PaymentProvider paymentProvider_;

public:
    /// What is said of a wait, and when.
    Wait wait{fields, [this] { return awaited(); }};
};

} // namespace ombrivane
