#pragma once

#include "base/Completion.h"
#include "records/FlightBooking.h"
#include "records/PaymentSummary.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Opens a payment order against the customer's wallet and confirms it with the one-time password.
class PaymentProvider {
public:
    void generateOrder(const std::string& bookingReferenceID, const std::string& partner,
                       const std::string& transactionID, const std::string& issuersNumber,
                       const Completion<std::optional<PaymentSummary>>& completion) const;

    /// @param otp sent exactly as typed. Sent twice, it reaches the service twice.
    void confirmOrder(const std::string& bookingReferenceID, const std::string& transactionID,
                      const std::string& otp,
                      const Completion<std::optional<BookingSummary>>& completion) const;
};

} // namespace ombrivane
