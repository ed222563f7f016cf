#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"
#include "offers/OfferLines.h"
#include "results/OfferSelection.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ombrivane {

/// What tells the lists of one-way offers from those of round-trip offers.
struct OneWayListTraits {
    using Offer = FlightSearchOneWay;
    static constexpr const char* list = "OneWayFlightListView";
    static constexpr const char* item = "OneWayListItemView";
    static constexpr const char* card = "OneWayHorizontalListItemView";
    static constexpr std::size_t journeys = 1;
};
struct RoundTripListTraits {
    using Offer = FlightSearchRoundTrip;
    static constexpr const char* list = "RoundTripFlightListView";
    static constexpr const char* item = "RoundTripListItemView";
    static constexpr const char* card = "RoundTripHorizontalListItemView";
    static constexpr std::size_t journeys = 2;
};

/// One offer of a result list. Without an offer it draws sample content under the shimmer.
class OfferItemView : public Screen {
public:
    /// @param lines makes what the card shows, folded
    /// @param unfoldedLines makes the lines with their segments, when they are shown
    /// @param travellers for how many the price is; may be empty
    OfferItemView(const char* itemName, std::optional<AnyFlight> offer, std::function<OfferLines()> lines,
                  std::function<OfferLines()> unfoldedLines, const OfferSelection& selection,
                  std::function<std::int64_t()> travellers) :
        Screen(itemName),
        offer_(std::move(offer)),
        lines_(std::move(lines)),
        unfoldedLines_(std::move(unfoldedLines)),
        selection_(selection),
        travellers_(std::move(travellers)) {}

    Derived<bool> isPlaceholder{fields, "isPlaceholder", [this] { return !offer_; }};
    Derived<std::string> id{fields, "id", [this] { return offer_ ? offer_->id().text() : std::string(); }};
    Derived<std::string> price{fields, "price", [this] { return lines_.get().price; }};
    /// "for 4 travellers"; empty for one.
    Derived<std::string> travellersText{
        fields, "travellersText", [this] {
            const auto count = travellers_ ? travellers_() : 1;
            return count > 1 ? said(Text::resultsForTravellers, {{"count", count}}) : std::string();
        }};
    Derived<std::vector<JourneyLines>> journeys{fields, "journeys", [this] {
                                                    return isUnfolded.get() ? unfoldedLines_().journeys
                                                                            : lines_.get().journeys;
                                                }};
    Derived<bool> isChosen{fields, "isChosen", [this] {
                               return offer_ && selection_.selectedFlightSegmentId.get() == offer_->id();
                           }};
    Derived<bool> isUnfolded{fields, "isUnfolded", [this] {
                                 return offer_ && selection_.showSegmant &&
                                        selection_.displayedSegmentId.get() == offer_->id();
                             }};
    Caption detailsText{fields, "detailsText", Text::resultsDetails};
    /// Chooses the offer and unfolds its segments, or takes both back.
    Action<> tap{*this, "tap", [this] { selection_.tap(*offer_); }, [this] { return offer_.has_value(); }};

private:
    const std::optional<AnyFlight> offer_;
    const Spoken<OfferLines> lines_;
    const std::function<OfferLines()> unfoldedLines_;
    OfferSelection selection_;
    const std::function<std::int64_t()> travellers_;
};

/// One card of the strip above a list.
class OfferCardView final : public Screen {
public:
    OfferCardView(const char* cardName, std::string logo, std::string carrier,
                  std::function<std::string()> priceText, std::function<void()> run) :
        Screen(cardName),
        carrierLogo(fields, "carrierLogo", std::move(logo)),
        carrierName(fields, "carrierName", std::move(carrier)),
        price(fields, "price", std::move(priceText)),
        tap(*this, "tap", std::move(run)) {}

    Constant carrierLogo;
    Constant carrierName;
    Derived<std::string> price;
    Action<> tap;
};

} // namespace ombrivane
