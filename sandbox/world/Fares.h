// What a journey costs and what the fare includes. All amounts are whole rupees.
#pragma once

#include "sandbox/world/Dice.h"
#include "sandbox/world/Schedules.h"
#include "sandbox/world/SearchRequest.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

struct FareTotals {
    std::int64_t adults = 0; ///< all adults together
    std::int64_t children = 0;
    std::int64_t infants = 0;
    std::optional<double> cashBack;

    [[nodiscard]] std::int64_t total() const { return adults + children + infants; }

    /// Every part dearer by so many percent, in whole rupees; the cash back stays.
    [[nodiscard]] FareTotals raised(int percent) const;
};

FareTotals operator+(const FareTotals& left, const FareTotals& right);

/// The keys that search results and availabilities share: total_adt, total_chd, total_inf, total_cost,
/// cashBack.
Json fareJson(const FareTotals& totals);

struct Fare {
    FareTotals totals;
    std::string cabin;      ///< "M", "W", "C" or "F"
    std::string_view brand; ///< "LITE", "CLASSIC" or "FLEX"
    bool isRefundable = false;
    int cabinKilos = 7;
    int checkedKilos = 20;
};

/// The price of a journey for the travellers of a search.
Fare priceJourney(const SearchRequest& request, const Journey& journey, Dice& dice);

/// The letter under which a cabin is booked.
std::string_view bookingLetter(std::string_view cabin);

} // namespace ombrivane::sandbox
