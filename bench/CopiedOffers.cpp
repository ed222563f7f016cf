#include "CopiedOffers.h"

#include "results/TimeBucket.h"

#include <algorithm>
#include <iterator>

namespace ombrivane::bench {
namespace {

bool cheaper(const FlightSearchOneWay& one, const FlightSearchOneWay& other) {
    return one.fareInformation.totalCost < other.fareInformation.totalCost;
}

} // namespace

void CopiedOffers::sort(std::vector<FlightSearchOneWay>& offers) {
    std::stable_sort(offers.begin(), offers.end(), cheaper);
}

void CopiedOffers::filter(double price, const std::string& airline, const std::string& time) {
    const TimeBucket* bucket = timeBucket(time);
    std::vector<FlightSearchOneWay> kept;
    std::copy_if(offers_.begin(), offers_.end(), std::back_inserter(kept), [&](const auto& offer) {
        if (airline != "All Airlines" && offer.flightSummary.carrierName != airline) return false;
        if (static_cast<double>(offer.fareInformation.totalCost) > price) return false;
        if (bucket == nullptr) return true;
        const auto hour = departureHour(offer.flightSummary.timeOfDeparture);
        return hour && *hour >= bucket->firstHour && *hour <= bucket->lastHour;
    });
    filtered_ = std::move(kept);
}

void CopiedOffers::openFilter() {
    const auto [least, most] = std::minmax_element(offers_.begin(), offers_.end(), cheaper);
    least_ = least->fareInformation.totalCost;
    most_ = most->fareInformation.totalCost;
    currency_ = offers_.back().searchSummary.currency;
    airlines_.clear();
    for (const auto& offer : offers_) {
        const auto& name = offer.flightSummary.carrierName;
        if (std::find(airlines_.begin(), airlines_.end(), name) == airlines_.end()) airlines_.push_back(name);
    }
}

void CopiedOffers::tap(std::size_t index) {
    const FlightSearchOneWay& offer = offers_.at(index);
    if (chosen_ && chosen_->id == offer.id) {
        chosen_.reset();
    } else {
        chosen_ = offer;
    }
}

} // namespace ombrivane::bench
