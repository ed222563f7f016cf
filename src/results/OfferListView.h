#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "results/OfferItemView.h"
#include "words/Spoken.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// What a list of offers needs of the screen that owns it.
struct OfferListBindings {
    Field<bool>& isLoading;
    Field<bool>& scrollToTop;
    OfferSelection selection;
    /// For how many the prices are.
    std::function<std::int64_t()> travellers{};
};

/// What a list of offers holds besides them. While a search runs it shows placeholders.
class OfferList : public Screen {
private:
    // Ahead of the bindings to it.
    const OfferSelection selection_;
    const std::function<std::int64_t()> travellers_;

public:
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
              [this] { return countRows(); },
              [this](std::size_t index) { return makeRow(index); },
              [this] { return identifyRows(); }};
    /// Empty where no strip is wanted.
    Rows strip{*this,
               "strip",
               [this] { return countCards(); },
               [this](std::size_t index) { return makeCard(index); },
               [this] { return identifyCards(); }};
    /// The list has arrived at its head.
    Action<> arrivedAtTop{*this, "arrivedAtTop", [this] { scrollToTop = false; }};

protected:
    OfferList(std::string_view name, const OfferListBindings& bindings, Text titleText);

    const OfferSelection& selection() const { return selection_; }
    const std::function<std::int64_t()>& travellers() const { return travellers_; }

    virtual std::size_t countRows() const = 0;
    virtual std::vector<RowIdentity> identifyRows() const = 0;
    virtual std::shared_ptr<Screen> makeRow(std::size_t index) const = 0;
    virtual std::size_t countCards() const = 0;
    virtual std::vector<RowIdentity> identifyCards() const = 0;
    virtual std::shared_ptr<Screen> makeCard(std::size_t index) = 0;

private:
    SpokenField titleWords_;
};

/// A list of offers with, where it is wanted, a strip of cards above it: one card for each pair of total and
/// airline.
template <class Traits> class OfferListView final : public OfferList {
public:
    using Offer = typename Traits::Offer;
    using Offers = std::vector<std::shared_ptr<const Offer>>;

    OfferListView(const Field<Offers>& shown, const OfferListBindings& bindings, Text titleText,
                  bool withStrip);

    Binding<Offers> offers;

protected:
    std::size_t countRows() const override;
    std::vector<RowIdentity> identifyRows() const override;
    std::shared_ptr<Screen> makeRow(std::size_t index) const override;
    std::size_t countCards() const override;
    std::vector<RowIdentity> identifyCards() const override;
    std::shared_ptr<Screen> makeCard(std::size_t index) override;

private:
    const Offers& stripOffers() const;

    const bool withStrip_;
    mutable Offers stripOffers_;
    mutable std::uint64_t stripVersion_ = UINT64_MAX;
};

using OneWayFlightListView = OfferListView<OneWayListTraits>;
using RoundTripFlightListView = OfferListView<RoundTripListTraits>;

extern template class OfferListView<OneWayListTraits>;
extern template class OfferListView<RoundTripListTraits>;

} // namespace ombrivane
