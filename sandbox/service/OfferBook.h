// The searches that were answered, and the offers that they hold.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/world/Offers.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace ombrivane::sandbox {

class OfferBook {
public:
    /// `address` leads the links in offers; `count` fixes how many offers a list has.
    OfferBook(std::uint64_t seed, std::string address, std::optional<std::size_t> count);

    /// The `data` of a search's answer: a list of offers, or two lists for a domestic round trip. Throws
    /// `Refusal` when there is no flight.
    Json search(const SearchRequest& request);

    /// How closely an itinerary must be the offer that was served.
    enum class Likeness {
        Whole,     ///< all keys, in their order, with all values
        KnownKeys, ///< the keys that clients know, in any order
    };

    /// The offer that a client sends back, which must stand in a list of that kind. Throws `Refusal` when it
    /// was not served or was changed; the sentence names the place.
    [[nodiscard]] Offer find(const Json& itinerary, OfferList list, Likeness likeness) const;

    void clear() { searches_.clear(); }

private:
    [[nodiscard]] std::size_t countFor(const SearchRequest& request) const;
    [[nodiscard]] Json offers(const SearchRequest& request, OfferList list) const;

    std::uint64_t seed_;
    std::string address_;
    std::optional<std::size_t> count_;
    std::map<std::string, SearchRequest> searches_;
};

} // namespace ombrivane::sandbox
