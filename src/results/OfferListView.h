#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "results/OfferItemView.h"
#include "words/Spoken.h"

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
private:
    // Ahead of the bindings to it.
    OfferSelection selection_;

public:
    using Offer = typename Traits::Offer;
    using Offers = std::vector<std::shared_ptr<const Offer>>;

    OfferListView(const Field<Offers>& shown, const OfferListBindings& bindings, Text titleText,
                  bool withStrip);

    Binding<Offers> offers;
    Binding<bool> isLoading;
    Binding<bool> scrollToTop;
    Binding<bool> showContinueButton{fields, "showContinueButton", selection_.showContinueButton};
    Binding<Uuid> displayedSegmentId{fields, "displayedSegmentId", selection_.displayedSegmentId};
    Binding<Uuid> selectedFlightSegmentId{
        fields, "selectedFlightSegmentId", selection_.selectedFlightSegmentId};
    Binding<bool> flightSelected{fields, "flightSelected", selection_.flightSelected};
    Binding<bool> showSegmant{fields, "showSegmant", selection_.showSegmant};
    Published<std::string> title{fields, "title"};
    /// The offer that a tapped card of the strip wants in view.
    Published<std::string> scrollToId{fields, "scrollToId"};
    Rows rows{*this,
              "rows",
              [this] { return isLoading ? placeholderCount : offers->size(); },
              [this](std::size_t index) { return makeRow(index); },
              [this] { return isLoading ? placeholders() : identitiesOf(offers.get(), &Offer::id); }};
    /// Empty where no strip is wanted.
    Rows strip{*this,
               "strip",
               [this] { return countCards(); },
               [this](std::size_t index) { return makeCard(index); },
               [this] { return identifyCards(); }};
    /// The list has arrived at its head.
    Action<> arrivedAtTop{*this, "arrivedAtTop", [this] { scrollToTop = false; }};

private:
    /// As many as fill a tall phone.
    static constexpr std::size_t placeholderCount = 6;
    static std::vector<RowIdentity> placeholders();

    std::size_t countCards() const;
    std::vector<RowIdentity> identifyCards() const;
    const Offers& stripOffers() const;
    std::shared_ptr<Screen> makeRow(std::size_t index) const;
    std::shared_ptr<Screen> makeCard(std::size_t index);

    SpokenField titleWords_;
    const bool withStrip_;
    mutable Offers stripOffers_;
    mutable std::uint64_t stripVersion_ = UINT64_MAX;
};

using OneWayFlightListView = OfferListView<OneWayListTraits>;
using RoundTripFlightListView = OfferListView<RoundTripListTraits>;

extern template class OfferListView<OneWayListTraits>;
extern template class OfferListView<RoundTripListTraits>;

} // namespace ombrivane
