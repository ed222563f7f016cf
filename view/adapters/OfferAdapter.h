#pragma once

#include "adapters/screens/JourneyProperties.h"
#include "adapters/screens/OfferProperties.h"

#include <QList>

#include <algorithm>

namespace ombrivane::view {

/// One journey of an offer. By hand, since its lines stay while its segments come and go as the offer is
/// unfolded.
class JourneyAdapter : public ombrivane::view::JourneyProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(int connections READ connections CONSTANT FINAL)

public:
    using JourneyProperties::JourneyProperties;

    /// How often one changes.
    int connections() const { return std::max(0, lines_.noOfSegments - 1); }
    void update(JourneyLines lines);
    /// The journey in one sentence, for assistive technology.
    QString spoken() const;
};

/// One card of a result list. By hand, since a card shows one or two journeys, each in its own place.
class OfferAdapter : public ombrivane::view::OfferProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(int journeyCount READ journeyCount CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::JourneyAdapter* outbound READ outbound CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::JourneyAdapter* inbound READ inbound CONSTANT FINAL)
    Q_PROPERTY(QString label READ label CONSTANT FINAL)

public:
    explicit OfferAdapter(std::shared_ptr<Screen> screen);

    int journeyCount() const { return static_cast<int>(journeys_.size()); }
    JourneyAdapter* outbound() const { return journeys_.value(0); }
    /// Null for a one-way offer.
    JourneyAdapter* inbound() const { return journeys_.value(1); }
    /// The offer in words, for assistive technology.
    QString label() const;

private:
    void update();

    QList<JourneyAdapter*> journeys_; ///< children of this
    Subscription watch_;
};

} // namespace ombrivane::view
