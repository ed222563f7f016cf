#pragma once

#include "results/FilterBottomSheetViewModel.h"
#include "results/FlightListViewModel.h"
#include "results/OfferListView.h"

#include <memory>
#include <string>
#include <vector>

namespace ombrivane::bench {

/// A result list on the screen: the model, the list, the dozen rows that are drawn, and the filter's model
/// over the same offers. Needs an installed platform.
class OfferList {
public:
    explicit OfferList(const OneWayOffers& offers);

    /// A tap on the drawn row `index`.
    void tap(std::size_t index) { drawn_.at(index)->tap(); }

    /// What opening the filter computes.
    void openFilter();
    void filter(double price, const std::string& airline, const std::string& time) {
        filter_.applyFilter(price, airline, time);
    }
    const FilterBottomSheetViewModel& filterModel() const { return filter_; }

private:
    FlightListViewModel model_;
    Published<bool> showSegmant_{model_.fields, "showSegmant"};
    FilterBottomSheetViewModel filter_;
    std::shared_ptr<OneWayFlightListView> list_;
    std::vector<std::shared_ptr<OfferItemView>> drawn_;
    std::vector<Subscription> observed_;
};

} // namespace ombrivane::bench
