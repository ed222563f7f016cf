#include "adapters/OfferAdapters.h"

#include <QStringList>

namespace ombrivane::view {

JourneyAdapter::JourneyAdapter(JourneyLines lines, QObject* parent) :
    QObject(parent), lines_(std::move(lines)) {
    makeSegments();
}

void JourneyAdapter::update(JourneyLines lines) {
    if (lines == lines_) return;
    lines_ = std::move(lines);
    const auto gone = std::exchange(segments_, {});
    makeSegments();
    emit segmentsChanged();
    for (auto* segment : gone)
        segment->deleteLater();
}

void JourneyAdapter::makeSegments() {
    for (const auto& lines : lines_.segments)
        segments_.append(std::make_unique<SegmentAdapter>(lines, this).release());
}

QString JourneyAdapter::spoken() const {
    const QStringList parts{carrierName(),
                            departureLocation(),
                            departureTime(),
                            departureDate(),
                            arrivalLocation(),
                            arrivalTime(),
                            arrivalDate(),
                            duration(),
                            cabin(),
                            refundability()};
    return parts.join(", ");
}

OfferAdapter::OfferAdapter(std::shared_ptr<Screen> offer) : ScreenAdapter(std::move(offer)) {
    for (const auto& lines : core().journeys.get())
        journeys_.append(std::make_unique<JourneyAdapter>(lines, this).release());
    watch_ = core().journeys.observe([this] { update(); });
}

void OfferAdapter::update() {
    const auto lines = core().journeys.get();
    for (std::size_t i = 0; i < lines.size(); ++i)
        journeys_[static_cast<qsizetype>(i)]->update(lines[i]);
}

QString OfferAdapter::label() const {
    QStringList parts{price()};
    for (const auto* journey : journeys_)
        parts.append(journey->spoken());
    return parts.join(". ");
}

} // namespace ombrivane::view
