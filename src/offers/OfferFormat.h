#pragma once

#include <cstdint>
#include <string>

namespace ombrivane {

/// Formatting that both kinds of result items offer. Stateless.
class OfferFormat {
public:
    /// "yyyy-MM-dd" as "E, MMM d, yyyy". What is no such day is only shown here, so it stays as it was sent.
    static std::string formatDate(const std::string& text);
    /// The name of a cabin class code; empty for an unknown one.
    static std::string cabinClassName(const std::string& code);
    /// Currency, a blank and the amount with grouping separators.
    static std::string price(const std::string& currency, std::int64_t amount);
};

/// The formatting of one-way items and of round-trip items is one.
using OneWayListItemViewModel = OfferFormat;
using RoundTripListItemViewModel = OfferFormat;

} // namespace ombrivane
