#include "booking/PaymentView.h"

#include "base/ErrorDomains.h"
#include "offers/OfferFormat.h"
#include "platform/OnMain.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

constexpr const char* partner = "kolmiWallet";
/// Shown while there is no order.
constexpr const char* sampleReference = "OMB26SAMPLE014";

} // namespace

PaymentView::PaymentView(PaymentGiven given) :
    Screen("PaymentView"),
    paymentSummary(fields, "paymentSummary", given.paymentSummary),
    bookingSummary(fields, "bookingSummary", given.bookingSummary),
    bookingDetailsViewRouteIsActive(fields, "bookingDetailsViewRouteIsActive",
                                    given.bookingDetailsViewRouteIsActive),
    errorMessage(fields, "errorMessage", given.errorMessage),
    showSnackBar(fields, "showSnackBar", given.showSnackBar),
    buttonWords_(buttonText, given.buttonText) {}

std::string PaymentView::routeText() const {
    const auto& order = paymentSummary.get();
    return order ? order->departureAirport + " - " + order->arrivalAirport
                 : "Kathmandu (KTM) - New York (JFK)";
}

std::string PaymentView::dateText() const {
    const auto& order = paymentSummary.get();
    if (!order) return "Thu, Jun 23, 2022 10:15";
    return order->departureDate + (order->returnDate ? " - " + *order->returnDate : "");
}

std::string PaymentView::referenceText() const {
    const auto& order = paymentSummary.get();
    return order ? order->bookingReferenceID : sampleReference;
}

std::string PaymentView::amountText() const {
    const auto& order = paymentSummary.get();
    return order ? OfferFormat::price(order->currency, order->amount) : "NPR 80,000";
}

std::string PaymentView::bookingReferenceID() const {
    const auto& order = paymentSummary.get();
    return order ? order->bookingReferenceID : "";
}

std::string PaymentView::transactionID() const {
    const auto& order = paymentSummary.get();
    return order ? order->transactionID : "";
}

void PaymentView::fail(const std::optional<Error>& error) {
    errorMessage = error ? error->localizedDescription : "";
    showProgressView = false;
    showSnackBar = true;
}

std::optional<Awaited> PaymentView::awaited() const {
    if (!showProgressView) return std::nullopt;
    if (isConfirming_) return Awaited{Text::paymentConfirming, Text::waitForPayment};
    return Awaited{Text::paymentOrdering, Text::waitOrGoBack};
}

void PaymentView::type(const std::string& text) {
    otpText = text;
    otpError = "";
}

void PaymentView::generateOrder() {
    isConfirming_ = false;
    showProgressView = true;
    using Answer = std::optional<PaymentSummary>;
    paymentProvider_.generateOrder(
        bookingReferenceID(),
        partner,
        transactionID(),
        AppState::shared().phone->value_or(""),
        onMain<Answer>([hold = shared_from_this(), this](Answer, std::optional<Error> error) {
            if (error) return fail(error);
            showProgressView = false;
        }));
}

void PaymentView::confirmOrder() {
    isConfirming_ = true;
    otpError = "";
    showProgressView = true;
    using Answer = std::optional<BookingSummary>;
    paymentProvider_.confirmOrder(
        bookingReferenceID(),
        transactionID(),
        otpText,
        onMain<Answer>([hold = shared_from_this(), this](Answer summary, std::optional<Error> error) {
            if (error && error->domain == errorDomain::service) otpError = error->localizedDescription;
            if (error) return fail(error);
            bookingSummary = std::move(summary);
            showProgressView = false;
            bookingDetailsViewRouteIsActive = true;
        }));
}

} // namespace ombrivane
