#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"
#include "offers/OfferLines.h"
#include "results/OfferSelection.h"

#include <memory>
#include <string>
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
    /// @param lines what the card shows, folded
    /// @param unfoldedLines makes the lines with their segments, when they are shown
    OfferItemView(const char* itemName, std::optional<AnyFlight> offer, OfferLines lines,
                  std::function<OfferLines()> unfoldedLines, const OfferSelection& selection);

    Derived<bool> isPlaceholder;
    Derived<std::string> id;
    Derived<std::string> price;
    Derived<std::vector<JourneyLines>> journeys;
    Derived<bool> isChosen;
    Derived<bool> isUnfolded;
    Derived<std::string> detailsText;
    /// Chooses the offer and unfolds its segments, or takes both back.
    Action<> tap;

private:
    std::optional<AnyFlight> offer_;
    OfferLines lines_;
    std::function<OfferLines()> unfoldedLines_;
    OfferSelection selection_;
};

/// One card of the strip above a list.
class OfferCardView final : public Screen {
public:
    OfferCardView(const char* cardName, std::string logo, std::string carrier, std::string priceText,
                  std::function<void()> run);

    Derived<std::string> carrierLogo;
    Derived<std::string> carrierName;
    Derived<std::string> price;
    Action<> tap;
};

} // namespace ombrivane
