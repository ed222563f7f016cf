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

OfferList::OfferList(std::string_view listName, const OfferListBindings& bindings, Text titleText) :
    Screen(listName),
    selection_(bindings.selection),
    travellers_(bindings.travellers),
    isLoading(fields, "isLoading", bindings.isLoading),
    scrollToTop(fields, "scrollToTop", bindings.scrollToTop),
    titleWords_(title, titleText) {}

template <class Traits>
OfferListView<Traits>::OfferListView(const Field<Offers>& shown, const OfferListBindings& bindings,
                                     Text titleText, bool withStrip) :
    OfferList(Traits::list, bindings, titleText),
    offers(fields, Traits::journeys == 1 ? "onewayFlights" : "roundtripFlights", shown),
    withStrip_(withStrip) {}

template <class Traits> std::size_t OfferListView<Traits>::countRows() const {
    return isLoading ? placeholderCount : offers->size();
}

template <class Traits> std::vector<RowIdentity> OfferListView<Traits>::identifyRows() const {
    return isLoading ? placeholders() : identitiesOf(offers.get(), &Offer::id);
}

template <class Traits> std::size_t OfferListView<Traits>::countCards() const {
    if (!withStrip_) return 0;
    return isLoading ? placeholderCount : stripOffers().size();
}

template <class Traits> std::vector<RowIdentity> OfferListView<Traits>::identifyCards() const {
    if (!withStrip_) return {};
    return isLoading ? placeholders() : identitiesOf(stripOffers(), &Offer::id);
}

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
            Traits::item,
            std::nullopt,
            [] { return placeholderLines(Traits::journeys); },
            nullptr,
            selection(),
            travellers());
    }
    const auto offer = offers->at(index);
    return std::make_shared<OfferItemView>(
        Traits::item,
        AnyFlight(offer),
        [offer] { return foldedLines(*offer); },
        [offer] { return linesOf(*offer); },
        selection(),
        travellers());
}

template <class Traits> std::shared_ptr<Screen> OfferListView<Traits>::makeCard(std::size_t index) {
    if (isLoading) {
        const OfferLines sample = placeholderLines(1);
        return std::make_shared<OfferCardView>(
            Traits::card,
            "dummyurl",
            sample.journeys.front().carrierName,
            [price = sample.price] { return price; },
            [] {});
    }
    const auto& offer = *stripOffers().at(index);
    const auto& journey = outbound(offer);
    return std::make_shared<OfferCardView>(
        Traits::card,
        journey.carrierLogo,
        journey.carrierName,
        [currency = offer.searchSummary.currency, cost = offer.fareInformation.totalCost] {
            return OfferFormat::price(currency, cost);
        },
        [this, id = offer.id.text()] { scrollToId = id; });
}

template class OfferListView<OneWayListTraits>;
template class OfferListView<RoundTripListTraits>;

} // namespace ombrivane
