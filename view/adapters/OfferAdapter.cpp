#include "adapters/OfferAdapter.h"

#include <QStringList>

namespace ombrivane::view {
namespace {

/// What may be carried along, with the word for the icon that stands beside it.
std::string weight(Text what, const std::string& allowance) {
    return said(Text::fieldWithValue, {{"field", said(what)}, {"value", allowance}});
}

} // namespace

void JourneyAdapter::update(JourneyLines lines) {
    if (lines == lines_) return;
    lines_ = std::move(lines);
    segmentsRenewed();
}

QString JourneyAdapter::spoken() const {
    const std::vector<std::string> parts{lines_.carrierName,
                                         lines_.departureLocation,
                                         lines_.departureTime,
                                         lines_.departureDate,
                                         lines_.arrivalLocation,
                                         lines_.arrivalTime,
                                         lines_.arrivalDate,
                                         lines_.duration,
                                         lines_.cabin,
                                         lines_.refundability,
                                         weight(Text::cabinBaggage, lines_.cabinBaggage),
                                         weight(Text::checkInBaggage, lines_.checkInBaggage)};
    return shown(parts).join(", ");
}

OfferAdapter::OfferAdapter(std::shared_ptr<Screen> offer) : OfferProperties(std::move(offer)) {
    journeys_ = makeValues<JourneyAdapter>(core().journeys.get(), this);
    watch_ = core().journeys.observe([this] { update(); });
}

void OfferAdapter::update() {
    const auto lines = core().journeys.get();
    for (std::size_t i = 0; i < lines.size(); ++i)
        journeys_[static_cast<qsizetype>(i)]->update(lines[i]);
}

QString OfferAdapter::label() const {
    QStringList parts{shown(core().price.get())};
    if (const auto travellers = core().travellersText.get(); !travellers.empty())
        parts.first().append(' ' + shown(travellers));
    for (const auto* journey : journeys_)
        parts.append(journey->spoken());
    return parts.join(". ");
}

} // namespace ombrivane::view
