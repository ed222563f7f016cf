#pragma once

#include "records/Scalars.h"
#include "records/Wire.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// What was searched, as the service tells it beside an offer.
struct SearchSummary {
    std::string searchKey;
    std::string sourceID;
    std::string currency;
    std::string validatingCarrier;
    std::optional<std::vector<std::string>> rbd;
    std::optional<std::string> bookingClass;
    std::optional<std::string> ticketingCurrency;
    std::optional<FreeBaggage> freeBaggage;
    std::optional<std::string> flightNo;
    std::optional<std::string> refundable; ///< text, shown as it comes

    bool operator==(const SearchSummary&) const = default;

    static constexpr auto wire =
        fields(field("search_key", &SearchSummary::searchKey), field("source_id", &SearchSummary::sourceID),
               field("currency", &SearchSummary::currency),
               field("validating_carrier", &SearchSummary::validatingCarrier),
               field("rbd", &SearchSummary::rbd), field("booking_class", &SearchSummary::bookingClass),
               field("ticketing_currency", &SearchSummary::ticketingCurrency),
               field("FreeBaggage", &SearchSummary::freeBaggage), field("FlightNo", &SearchSummary::flightNo),
               field("refundable", &SearchSummary::refundable));
};

/// Of a round-trip offer: the booking codes are told per direction, and refundability is not told at all.
struct RoundTripSearchSummary {
    std::string searchKey;
    std::string sourceID;
    std::string currency;
    std::string validatingCarrier;
    std::optional<std::vector<std::string>> rbdOutbound;
    std::optional<std::vector<std::string>> rbdReturn;
    std::optional<std::string> bookingClass;
    std::optional<std::string> ticketingCurrency;

    bool operator==(const RoundTripSearchSummary&) const = default;

    static constexpr auto wire =
        fields(field("search_key", &RoundTripSearchSummary::searchKey),
               field("source_id", &RoundTripSearchSummary::sourceID),
               field("currency", &RoundTripSearchSummary::currency),
               field("validating_carrier", &RoundTripSearchSummary::validatingCarrier),
               field("rbd_outbound", &RoundTripSearchSummary::rbdOutbound),
               field("rbd_return", &RoundTripSearchSummary::rbdReturn),
               field("booking_class", &RoundTripSearchSummary::bookingClass),
               field("ticketing_currency", &RoundTripSearchSummary::ticketingCurrency));
};

} // namespace ombrivane
