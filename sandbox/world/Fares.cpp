#include "sandbox/world/Fares.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ombrivane::sandbox {

namespace {

std::int64_t raisedPart(std::int64_t amount, int percent) { return (amount * (100 + percent) + 50) / 100; }

std::string cabinOf(const SearchRequest& request, Dice& dice) {
    if (!request.cabin.empty()) return request.cabin;
    const int roll = dice.between(1, 100);
    if (request.isDomestic()) return roll <= 90 ? "M" : "C";
    return roll <= 74 ? "M" : roll <= 83 ? "W" : roll <= 96 ? "C" : "F";
}

double cabinFactor(std::string_view cabin) {
    return cabin == "W" ? 1.6 : cabin == "C" ? 2.8 : cabin == "F" ? 4.5 : 1.0;
}

/// The usual adult price in economy.
double basicPrice(const Journey& journey) {
    const double kilometres = distance(*journey.first().from, *journey.last().to);
    if (journey.first().from->isDomestic() && journey.last().to->isDomestic()) return 2'600 + 15 * kilometres;
    return kilometres < 4'500 ? 13'000 + 7 * kilometres : 45'000 + 8.5 * kilometres;
}

} // namespace

FareTotals FareTotals::raised(int percent) const {
    return {
        raisedPart(adults, percent), raisedPart(children, percent), raisedPart(infants, percent), cashBack};
}

FareTotals operator+(const FareTotals& left, const FareTotals& right) {
    FareTotals sum{
        left.adults + right.adults, left.children + right.children, left.infants + right.infants, {}};
    if (left.cashBack || right.cashBack)
        sum.cashBack = left.cashBack.value_or(0) + right.cashBack.value_or(0);
    return sum;
}

Json fareJson(const FareTotals& totals) {
    Json fare{{"total_adt", totals.adults},
              {"total_chd", totals.children},
              {"total_inf", totals.infants},
              {"total_cost", totals.total()}};
    if (!totals.cashBack) return fare;
    const std::int64_t whole = std::llround(std::floor(*totals.cashBack));
    fare["cashBack"] = static_cast<double>(whole) < *totals.cashBack ? Json(*totals.cashBack) : Json(whole);
    return fare;
}

Fare priceJourney(const SearchRequest& request, const Journey& journey, Dice& dice) {
    constexpr std::array<std::string_view, 3> brands{"LITE", "CLASSIC", "FLEX"};
    constexpr std::array<double, 3> brandFactors{0.92, 1.0, 1.14};
    const bool isDomestic = request.isDomestic();
    const std::size_t brand = dice.below(brands.size());
    Fare fare;
    fare.cabin = cabinOf(request, dice);
    fare.brand = brands[brand];
    fare.isRefundable = brand == 2 || (brand == 1 && dice.percent(50));
    fare.checkedKilos = isDomestic ? (brand == 0 ? 15 : 20) : (brand == 0 ? 20 : brand == 1 ? 30 : 40);
    fare.cabinKilos = isDomestic ? 5 : fare.cabin == "M" ? 7 : 10;

    const double demand = dice.between(92, 116) / 100.0;
    const double directness = journey.legs.size() == 1 && !isDomestic ? 1.07 : 1.0;
    const double price = basicPrice(journey) * demand * directness * brandFactors[brand] *
                         journey.first().carrier->fareLevel * cabinFactor(fare.cabin);
    const std::int64_t adult = std::llround(price);
    fare.totals.adults = adult * request.adults;
    fare.totals.children = raisedPart(adult, -25) * request.children;
    fare.totals.infants = raisedPart(adult, -90) * request.infants;
    if (dice.percent(60)) fare.totals.cashBack = static_cast<double>(adult / 100) / 2;
    return fare;
}

std::string_view bookingLetter(std::string_view cabin) {
    return cabin == "W" ? "P" : cabin == "C" ? "J" : cabin == "F" ? "A" : "Y";
}

} // namespace ombrivane::sandbox
