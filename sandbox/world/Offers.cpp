#include "sandbox/world/Offers.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace ombrivane::sandbox {

namespace {

constexpr std::string_view listLetters = "ORDB";

char letterOf(OfferList list) { return listLetters[static_cast<std::size_t>(list)]; }

/// Draws the better of two, so that the direct ways come up more often.
const Routing& drawRouting(const std::vector<Routing>& routings, Dice& dice) {
    return routings[std::min(dice.below(routings.size()), dice.below(routings.size()))];
}

bool isPossible(const Journey& outbound, const Journey& back) {
    return back.first().departure >= outbound.last().arrival + std::chrono::hours(2);
}

SearchRequest wayBack(SearchRequest request) {
    std::swap(request.from, request.to);
    request.departure = *request.comingBack;
    return request;
}

} // namespace

FareTotals Offer::presentFare() const { return index % 7 == 6 ? fare.totals.raised(3) : fare.totals; }

std::string searchId(std::uint64_t seed, const SearchRequest& request) {
    return Dice(seed, "search " + request.subject()).letters(16, hexadecimal);
}

std::optional<Offer> makeOffer(std::uint64_t seed, const SearchRequest& request, OfferList list,
                               std::size_t index) {
    Offer offer;
    offer.key = fmt::format("{}-{}-{:04}", searchId(seed, request), letterOf(list), index);
    offer.list = list;
    offer.index = index;
    offer.request = list == OfferList::SpecialReturn ? wayBack(request) : request;
    Dice dice(seed, "offer " + offer.key);
    const auto& asked = offer.request;
    offer.outbound =
        makeJourney(drawRouting(routingsBetween(*asked.from, *asked.to), dice), asked.departure, dice);
    offer.fare = priceJourney(asked, offer.outbound, dice);
    if (list == OfferList::Round) {
        const auto& routings = routingsBetween(*asked.to, *asked.from);
        offer.back = makeJourney(drawRouting(routings, dice), *asked.comingBack, dice);
        if (!isPossible(offer.outbound, *offer.back)) return std::nullopt;
        SearchRequest sameCabin = asked;
        sameCabin.cabin = offer.fare.cabin;
        offer.fare.totals =
            (offer.fare.totals + priceJourney(sameCabin, *offer.back, dice).totals).raised(-8);
    }
    offer.isSparse = dice.percent(10);
    return offer;
}

std::optional<OfferPlace> placeOf(const std::string& offerKey) {
    const std::size_t first = offerKey.find('-');
    if (first == std::string::npos || first + 3 >= offerKey.size() || offerKey[first + 2] != '-')
        return std::nullopt;
    const std::size_t list = listLetters.find(offerKey[first + 1]);
    std::size_t index = 0;
    const char* end = offerKey.data() + offerKey.size();
    if (list == std::string_view::npos || std::from_chars(&offerKey[first + 3], end, index).ptr != end)
        return std::nullopt;
    return OfferPlace{offerKey.substr(0, first), static_cast<OfferList>(list), index};
}

} // namespace ombrivane::sandbox
