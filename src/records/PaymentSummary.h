#pragma once

#include "records/Wire.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// A payment order against the customer's wallet.
struct PaymentSummary {
    std::optional<std::string> partnerName;
    std::string bookingReferenceID;
    std::string currency;
    std::int64_t amount = 0; ///< whole units of the currency
    std::string transactionID;
    std::string tripType;
    std::string departureAirport;
    std::string arrivalAirport;
    std::string departureDate; ///< shown as it comes
    std::optional<std::string> returnDate;

    bool operator==(const PaymentSummary&) const = default;

    static constexpr auto wire = fields(
        field("partnerName", &PaymentSummary::partnerName),
        field("bookingReferenceID", &PaymentSummary::bookingReferenceID),
        field("currency", &PaymentSummary::currency), field("amount", &PaymentSummary::amount),
        field("transactionID", &PaymentSummary::transactionID), field("tripType", &PaymentSummary::tripType),
        field("departureAirport", &PaymentSummary::departureAirport),
        field("arrivalAirport", &PaymentSummary::arrivalAirport),
        field("departureDate", &PaymentSummary::departureDate),
        field("returnDate", &PaymentSummary::returnDate));
};

} // namespace ombrivane
