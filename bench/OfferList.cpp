#include "OfferList.h"

#include <algorithm>

namespace ombrivane::bench {

OfferList::OfferList(const OneWayOffers& offers) {
    model_.onewayFlights = offers;
    model_.filteredOnewayFlights = offers;
    model_.isLoading = false;
    filter_.onewayFlights = offers;
    const OfferSelection selection{model_.flight,
                                   model_.showContinueButton,
                                   model_.displayedSegmentId,
                                   model_.selectedFlightSegmentId,
                                   model_.flightSelected,
                                   showSegmant_};
    list_ = std::make_shared<OneWayFlightListView>(
        model_.filteredOnewayFlights,
        OfferListBindings{model_.isLoading, model_.scrollToTop, selection},
        Text::resultsDeparting,
        true);
    constexpr std::size_t visible = 12;
    for (std::size_t i = 0; i < std::min(visible, offers.size()); ++i) {
        drawn_.push_back(std::dynamic_pointer_cast<OfferItemView>(list_->rows.row(i)));
        for (Member* member : drawn_.back()->fields.members()) {
            if (member->kind() == MemberKind::derived) observed_.push_back(member->observe([] {}));
        }
    }
}

void OfferList::openFilter() {
    filter_.calculateMaxPrice();
    filter_.calculateMinPrice();
    filter_.collectAirlines();
    filter_.readCurrency();
}

} // namespace ombrivane::bench
