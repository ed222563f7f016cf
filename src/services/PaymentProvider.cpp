#include "services/PaymentProvider.h"

#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

namespace ombrivane {

void PaymentProvider::generateOrder(const std::string& bookingReferenceID, const std::string& partner,
                                    const std::string& transactionID, const std::string& issuersNumber,
                                    const Completion<std::optional<PaymentSummary>>& completion) const {
    ServiceCall call;
    call.endpoint = endpoint::orderGeneration;
    call.body = [&] {
        return Body()
            .add("user_type", AppState::shared().userType.get())
            .add("bookingReferenceID", bookingReferenceID)
            .add("partner", partner)
            .add("transactionID", transactionID)
            .add("issuersNumber", issuersNumber)
            .serialised();
    };
    send<std::optional<PaymentSummary>>(
        call,
        [](const Envelope& envelope) { return envelope.record<PaymentSummary>("paymentSummary"); },
        completion);
}

void PaymentProvider::confirmOrder(const std::string& bookingReferenceID, const std::string& transactionID,
                                   const std::string& otp,
                                   const Completion<std::optional<BookingSummary>>& completion) const {
    ServiceCall call;
    call.endpoint = endpoint::orderConfirmation;
    call.body = [&] {
        return Body()
            .add("user_type", AppState::shared().userType.get())
            .add("bookingReferenceID", bookingReferenceID)
            .add("transactionID", transactionID)
            .add("otp", otp)
            .serialised();
    };
    send<std::optional<BookingSummary>>(
        call,
        [](const Envelope& envelope) { return envelope.record<BookingSummary>("bookingSummary"); },
        completion);
}

} // namespace ombrivane
