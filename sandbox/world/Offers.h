// One offer of a search: made from the seed alone, so that it never has to be kept.
#pragma once

#include "sandbox/world/Fares.h"
#include "sandbox/world/Schedules.h"
#include "sandbox/world/SearchRequest.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane::sandbox {

/// Which list of an answer an offer stands in. A domestic round trip is answered with two.
enum class OfferList {
    OneWay,
    Round,
    SpecialOutbound,
    SpecialReturn,
};

struct Offer {
    std::string key; ///< `search_key`, different for every offer
    OfferList list = OfferList::OneWay;
    std::size_t index = 0; ///< position in its list
    SearchRequest request; ///< of a special return: the way back
    Journey outbound;
    std::optional<Journey> back; ///< of a round trip that is one offer
    Fare fare;
    bool isSparse = false; ///< without anything that a client can do without

    /// Some offers have become dearer by the time they are booked.
    [[nodiscard]] FareTotals presentFare() const;
};

/// The offer at that position, or none: the way back would leave before the way out arrives.
std::optional<Offer> makeOffer(std::uint64_t seed, const SearchRequest& request, OfferList list,
                               std::size_t index);

/// The list and position that `Offer::key` tells, without the part that tells the search.
struct OfferPlace {
    std::string search;
    OfferList list;
    std::size_t index;
};
std::optional<OfferPlace> placeOf(const std::string& offerKey);

/// The part of an offer's key that tells the search.
std::string searchId(std::uint64_t seed, const SearchRequest& request);

} // namespace ombrivane::sandbox
