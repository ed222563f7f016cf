#include "results/OfferListView.h"

#include "offers/OfferFormat.h"
#include "offers/OfferJourney.h"

#include <set>
#include <utility>

namespace ombrivane {
namespace {

/// As many as fill a tall phone.
constexpr std::size_t placeholderCount = 6;

std::vector<RowIdentity> placeholders() {
    std::vector<RowIdentity> identities;
    for (std::size_t index = 0; index < placeholderCount; ++index)
        identities.emplace_back("placeholder" + std::to_string(index));
    return identities;
}

} // namespace

template <class Traits>
OfferListView<Traits>::OfferListView(const Field<Offers>& shown, OfferListBindings bindings,
                                     std::string titleText, bool withStrip) :
    Screen(Traits::list),
    offers(fields, Traits::journeys == 1 ? "onewayFlights" : "roundtripFlights", shown),
    isLoading(fields, "isLoading", bindings.isLoading),
    scrollToTop(fields, "scrollToTop", bindings.scrollToTop),
    showContinueButton(fields, "showContinueButton", bindings.selection.showContinueButton),
    displayedSegmentId(fields, "displayedSegmentId", bindings.selection.displayedSegmentId),
    selectedFlightSegmentId(fields, "selectedFlightSegmentId", bindings.selection.selectedFlightSegmentId),
    flightSelected(fields, "flightSelected", bindings.selection.flightSelected),
    showSegmant(fields, "showSegmant", bindings.selection.showSegmant),
    title(fields, "title", std::move(titleText)),
    rows(
        *this, "rows", [this] { return isLoading ? placeholderCount : offers->size(); },
        [this](std::size_t index) { return makeRow(index); },
        [this] { return isLoading ? placeholders() : identitiesOf(offers.get(), &Offer::id); }),
    strip(
        *this, "strip",
        [this] {
            if (!withStrip_) return std::size_t{0};
            return isLoading ? placeholderCount : stripOffers().size();
        },
        [this](std::size_t index) { return makeCard(index); },
        [this] {
            if (!withStrip_) return std::vector<RowIdentity>();
            return isLoading ? placeholders() : identitiesOf(stripOffers(), &Offer::id);
        }),
    selection_(bindings.selection),
    withStrip_(withStrip) {}

template <class Traits>
const typename OfferListView<Traits>::Offers& OfferListView<Traits>::stripOffers() const {
    if (stripVersion_ == offers.version()) return stripOffers_;
    stripVersion_ = offers.version();
    stripOffers_.clear();
    std::set<std::pair<std::int64_t, std::string_view>> taken;
    for (const auto& offer : offers.get()) {
        const auto key =
            std::pair(offer->fareInformation.totalCost, std::string_view(outbound(*offer).carrierName));
        if (taken.insert(key).second) stripOffers_.push_back(offer);
    }
    return stripOffers_;
}

template <class Traits> std::shared_ptr<Screen> OfferListView<Traits>::makeRow(std::size_t index) const {
    if (isLoading) {
        return std::make_shared<OfferItemView>(
            Traits::item, std::nullopt, placeholderLines(Traits::journeys), nullptr, selection_);
    }
    const auto offer = offers->at(index);
    return std::make_shared<OfferItemView>(
        Traits::item, AnyFlight(offer), foldedLines(*offer), [offer] { return linesOf(*offer); }, selection_);
}

template <class Traits> std::shared_ptr<Screen> OfferListView<Traits>::makeCard(std::size_t index) {
    if (isLoading) {
        const OfferLines sample = placeholderLines(1);
        return std::make_shared<OfferCardView>(
            Traits::card, "dummyurl", sample.journeys.front().carrierName, sample.price, [] {});
    }
    const auto& offer = *stripOffers().at(index);
    const auto& journey = outbound(offer);
    return std::make_shared<OfferCardView>(
        Traits::card,
        journey.carrierLogo,
        journey.carrierName,
        OfferFormat::price(offer.searchSummary.currency, offer.fareInformation.totalCost),
        [this, id = offer.id.text()] { scrollToId = id; });
}

template class OfferListView<OneWayListTraits>;
template class OfferListView<RoundTripListTraits>;

} // namespace ombrivane
