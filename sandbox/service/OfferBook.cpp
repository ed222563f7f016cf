#include "sandbox/service/OfferBook.h"

#include "sandbox/service/OfferTree.h"
#include "sandbox/wire/BodyFields.h"
#include "sandbox/wire/Refusal.h"

#include <fmt/format.h>

#include <utility>

namespace ombrivane::sandbox {

namespace {

constexpr const char* noFlights = "Sorry! No flight recommendations found.";

bool isServed(const SearchRequest& request) {
    const bool hasCabin = !request.isDomestic() || (request.cabin != "W" && request.cabin != "F");
    return request.from->hasService() && request.to->hasService() && hasCabin;
}

void compare(const Json& sent, const Json& served, OfferBook::Likeness likeness) {
    const nlohmann::json left =
        likeness == OfferBook::Likeness::Whole ? nlohmann::json(served) : knownPart(served);
    const nlohmann::json differences = nlohmann::json::diff(left, nlohmann::json(sent));
    if (!differences.empty())
        throw Refusal(fmt::format("The itinerary is not the offer that was served: it differs at {}.",
                                  differences[0]["path"].get<std::string>()));
    if (likeness == OfferBook::Likeness::Whole && sent != served)
        throw Refusal("The itinerary is not the offer that was served: its keys stand in another order.");
}

} // namespace

OfferBook::OfferBook(std::uint64_t seed, std::string address, std::optional<std::size_t> count) :
    seed_(seed), address_(std::move(address)), count_(count) {}

Json OfferBook::search(const SearchRequest& request) {
    if (!isServed(request)) throw Refusal(noFlights);
    Json data;
    if (request.isRound() && request.isDomestic()) {
        data = Json::array(
            {offers(request, OfferList::SpecialOutbound), offers(request, OfferList::SpecialReturn)});
    } else {
        data = offers(request, request.isRound() ? OfferList::Round : OfferList::OneWay);
        if (data.empty()) throw Refusal(noFlights);
    }
    searches_[searchId(seed_, request)] = request;
    return data;
}

Offer OfferBook::find(const Json& itinerary, OfferList list, Likeness likeness) const {
    const BodyFields fields(itinerary, "itinerary.");
    const std::string key = BodyFields(fields.object("search_summary"), "search_summary.").text("search_key");
    const auto place = placeOf(key);
    const auto search = place ? searches_.find(place->search) : searches_.end();
    if (search == searches_.end() || place->index >= countFor(search->second))
        throw Refusal("The itinerary is not an offer of this service.");
    if (place->list != list) throw Refusal("The itinerary is an offer of another itinerary_type.");
    const auto offer = makeOffer(seed_, search->second, list, place->index);
    if (!offer) throw Refusal("The itinerary is not an offer of this service.");
    compare(itinerary, offerJson(*offer, address_), likeness);
    return *offer;
}

std::size_t OfferBook::countFor(const SearchRequest& request) const {
    return count_.value_or(12 + Dice(seed_, "count " + request.subject()).below(49));
}

Json OfferBook::offers(const SearchRequest& request, OfferList list) const {
    Json offers = Json::array();
    const std::size_t count = countFor(request);
    for (std::size_t index = 0; index < count; ++index)
        if (const auto offer = makeOffer(seed_, request, list, index))
            offers.push_back(offerJson(*offer, address_));
    return offers;
}

} // namespace ombrivane::sandbox
