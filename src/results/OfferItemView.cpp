#include "results/OfferItemView.h"

namespace ombrivane {

OfferItemView::OfferItemView(const char* itemName, std::optional<AnyFlight> offer, OfferLines lines,
                             std::function<OfferLines()> unfoldedLines, const OfferSelection& selection) :
    Screen(itemName),
    isPlaceholder(fields, "isPlaceholder", [this] { return !offer_.has_value(); }),
    id(fields, "id", [this] { return offer_ ? offer_->id().text() : std::string(); }),
    price(fields, "price", [this] { return lines_.price; }),
    journeys(fields, "journeys",
             [this] { return isUnfolded.get() ? unfoldedLines_().journeys : lines_.journeys; }),
    isChosen(fields, "isChosen",
             [this] { return offer_ && selection_.selectedFlightSegmentId.get() == offer_->id(); }),
    isUnfolded(fields, "isUnfolded",
               [this] {
                   return offer_ && selection_.showSegmant.get() &&
                          selection_.displayedSegmentId.get() == offer_->id();
               }),
    detailsText(fields, "detailsText", [] { return std::string("View Details"); }),
    tap(
        *this, "tap", [this] { selection_.tap(*offer_); }, [this] { return offer_.has_value(); }),
    offer_(std::move(offer)),
    lines_(std::move(lines)),
    unfoldedLines_(std::move(unfoldedLines)),
    selection_(selection) {}

OfferCardView::OfferCardView(const char* cardName, std::string logo, std::string carrier,
                             std::string priceText, std::function<void()> run) :
    Screen(cardName),
    carrierLogo(fields, "carrierLogo", [text = std::move(logo)] { return text; }),
    carrierName(fields, "carrierName", [text = std::move(carrier)] { return text; }),
    price(fields, "price", [text = std::move(priceText)] { return text; }),
    tap(*this, "tap", std::move(run)) {}

} // namespace ombrivane
