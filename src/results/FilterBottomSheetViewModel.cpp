#include "results/FilterBottomSheetViewModel.h"

#include "base/WholeNumber.h"
#include "offers/OfferJourney.h"
#include "platform/Platform.h"
#include "results/AllAirlines.h"
#include "results/TimeBucket.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ombrivane {
namespace {

constexpr std::int64_t dearest = 10'000'000;

} // namespace

template <class Visit> void FilterBottomSheetViewModel::visitOffers(Visit visit) const {
    if (!roundtripFlights->empty()) {
        for (const auto& offer : roundtripFlights.get())
            visit(*offer);
    } else {
        for (const auto& offer : onewayFlights.get())
            visit(*offer);
    }
}

void FilterBottomSheetViewModel::calculateMaxPrice() {
    std::int64_t most = 0;
    visitOffers([&most](const auto& offer) { most = std::max(most, offer.fareInformation.totalCost); });
    maxPrice = amountOf(most);
}

void FilterBottomSheetViewModel::calculateMinPrice() {
    std::int64_t least = dearest;
    visitOffers([&least](const auto& offer) { least = std::min(least, offer.fareInformation.totalCost); });
    minPrice = amountOf(least);
}

void FilterBottomSheetViewModel::collectAirlines() {
    // First where each name stands, then the comparing: the reads of ten thousand records do not wait for it.
    std::vector<std::string_view> all;
    visitOffers([&](const auto& offer) { all.push_back(outbound(offer).carrierName); });
    std::unordered_set<std::string_view> seen;
    std::vector<std::string> names;
    for (const std::string_view name : all) {
        if (seen.insert(name).second) names.emplace_back(name);
    }
    airLines = std::move(names);
}

void FilterBottomSheetViewModel::readCurrency() {
    if (!roundtripFlights->empty()) {
        currency = roundtripFlights->back()->searchSummary.currency;
    } else {
        currency = onewayFlights->empty() ? "" : onewayFlights->back()->searchSummary.currency;
    }
}

void FilterBottomSheetViewModel::applyFilter(double price, const std::string& selectedId,
                                             const std::string& time) {
    const std::int64_t ceiling = wholeNumber(price, "the filter's price");
    const TimeBucket* bucket = timeBucket(time);
    const auto passes = [&](const auto& offer) {
        const auto& journey = outbound(*offer);
        if (selectedId != allAirlines && journey.carrierName != selectedId) return false;
        if (offer->fareInformation.totalCost > ceiling) return false;
        if (bucket == nullptr) return true;
        const auto hour = departureHour(journey.timeOfDeparture);
        return hour && *hour >= bucket->firstHour && *hour <= bucket->lastHour;
    };
    const auto filter = [&passes](const auto& offers) {
        std::decay_t<decltype(offers)> kept;
        std::copy_if(offers.begin(), offers.end(), std::back_inserter(kept), passes);
        return kept;
    };
    if (bucket == nullptr) platform().diagnostics->print("No time selected to filter");
    if (!roundtripFlights->empty()) {
        filteredRoundtripFlights = filter(roundtripFlights.get());
    } else {
        filteredOnewayFlights = filter(onewayFlights.get());
    }
}

} // namespace ombrivane
