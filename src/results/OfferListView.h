#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "results/OfferItemView.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// What a list of offers needs of the screen that owns it.
struct OfferListBindings {
    Field<bool>& isLoading;
    Field<bool>& scrollToTop;
    OfferSelection selection;
};

/// A list of offers with, where it is wanted, a strip of cards above it: one card for each pair of total and
/// airline. While a search runs it shows placeholders.
template <class Traits> class OfferListView final : public Screen {
public:
    using Offer = typename Traits::Offer;
    using Offers = std::vector<std::shared_ptr<const Offer>>;

    OfferListView(const Field<Offers>& shown, OfferListBindings bindings, std::string titleText,
                  bool withStrip);

    Binding<Offers> offers;
    Binding<bool> isLoading;
    Binding<bool> scrollToTop;
    Binding<bool> showContinueButton;
    Binding<Uuid> displayedSegmentId;
    Binding<Uuid> selectedFlightSegmentId;
    Binding<bool> flightSelected;
    Binding<bool> showSegmant;
    Published<std::string> title;
    /// The offer that a tapped card of the strip wants in view.
    Published<std::string> scrollToId{fields, "scrollToId"};
    Rows rows;
    Rows strip;
    /// The list has arrived at its head.
    Action<> arrivedAtTop{*this, "arrivedAtTop", [this] { scrollToTop = false; }};

private:
    const Offers& stripOffers() const;
    std::shared_ptr<Screen> makeRow(std::size_t index) const;
    std::shared_ptr<Screen> makeCard(std::size_t index);

    OfferSelection selection_;
    bool withStrip_;
    mutable Offers stripOffers_;
    mutable std::uint64_t stripVersion_ = UINT64_MAX;
};

using OneWayFlightListView = OfferListView<OneWayListTraits>;
using RoundTripFlightListView = OfferListView<RoundTripListTraits>;

extern template class OfferListView<OneWayListTraits>;
extern template class OfferListView<RoundTripListTraits>;

} // namespace ombrivane
