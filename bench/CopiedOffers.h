#pragma once

#include "records/FlightSearchOneWay.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane::bench {

/// The same work on lists of records instead of shared ones: what it would cost to copy them.
class CopiedOffers {
public:
    explicit CopiedOffers(std::vector<FlightSearchOneWay> offers) : offers_(std::move(offers)) {}

    const std::vector<FlightSearchOneWay>& offers() const { return offers_; }
    const std::vector<FlightSearchOneWay>& filtered() const { return filtered_; }

    static void sort(std::vector<FlightSearchOneWay>& offers);
    void filter(double price, const std::string& airline, const std::string& time);
    void openFilter();
    /// Chooses the offer, or takes it back when it is the chosen one.
    void tap(std::size_t index);

private:
    std::vector<FlightSearchOneWay> offers_;
    std::vector<FlightSearchOneWay> filtered_;
    std::optional<FlightSearchOneWay> chosen_;
    std::vector<std::string> airlines_;
    std::string currency_;
    std::int64_t most_ = 0;
    std::int64_t least_ = 0;
};

} // namespace ombrivane::bench
