#pragma once

#include "adapters/ReadOnlyList.h"
#include "adapters/ScreenAdapter.h"
#include "results/OfferItemView.h"

/// One line of a value that never changes.
#define OMBRIVANE_LINE(name)                                                                                 \
    Q_PROPERTY(QString name READ name CONSTANT FINAL)                                                        \
public:                                                                                                      \
    QString name() const { return ombrivane::view::shown(lines_.name); }                                     \
                                                                                                             \
private:

namespace ombrivane::view {

/// One segment of an unfolded offer.
class SegmentAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrier)
    OMBRIVANE_LINE(operatedBy)
    OMBRIVANE_LINE(from)
    OMBRIVANE_LINE(departure)
    OMBRIVANE_LINE(to)
    OMBRIVANE_LINE(arrival)
    OMBRIVANE_LINE(connection)

public:
    SegmentAdapter(SegmentLines lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}

private:
    SegmentLines lines_;
};

/// One journey of an offer. Its lines stay; its segments come and go as the offer is unfolded.
class JourneyAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(
        QQmlListProperty<ombrivane::view::SegmentAdapter> segments READ segments NOTIFY segmentsChanged FINAL)
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrierName)
    OMBRIVANE_LINE(refundability)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(departureLocation)
    OMBRIVANE_LINE(departureTime)
    OMBRIVANE_LINE(departureDate)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(lineImage)
    OMBRIVANE_LINE(arrivalLocation)
    OMBRIVANE_LINE(arrivalTime)
    OMBRIVANE_LINE(arrivalDate)
    OMBRIVANE_LINE(cabinBaggage)
    OMBRIVANE_LINE(checkInBaggage)
    OMBRIVANE_LINE(departureCountry)
    OMBRIVANE_LINE(arrivalCountry)

public:
    JourneyAdapter(JourneyLines lines, QObject* parent);

    QQmlListProperty<SegmentAdapter> segments() { return readOnlyList(this, segments_); }
    void update(JourneyLines lines);
    /// The journey in one sentence, for assistive technology.
    QString spoken() const;

    Q_SIGNAL void segmentsChanged();

private:
    void makeSegments();

    JourneyLines lines_;
    QList<SegmentAdapter*> segments_; ///< children of this
};

/// One card of a result list.
class OfferAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(int journeyCount READ journeyCount CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::JourneyAdapter* outbound READ outbound CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::JourneyAdapter* inbound READ inbound CONSTANT FINAL)
    Q_PROPERTY(QString label READ label CONSTANT FINAL)
    OMBRIVANE_TEXT(price, core().price)
    OMBRIVANE_TEXT(detailsText, core().detailsText)
    OMBRIVANE_FLAG(isPlaceholder, core().isPlaceholder)
    OMBRIVANE_FLAG(isChosen, core().isChosen)
    OMBRIVANE_FLAG(isUnfolded, core().isUnfolded)
    OMBRIVANE_INTENT(tap, core().tap)

public:
    explicit OfferAdapter(std::shared_ptr<Screen> screen);

    OfferItemView& core() const { return static_cast<OfferItemView&>(*screen()); }
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

/// One card of the strip above a list.
class OfferCardAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QString label READ label CONSTANT FINAL)
    OMBRIVANE_SCREEN(OfferCardAdapter, OfferCardView)
    OMBRIVANE_TEXT(carrierLogo, core().carrierLogo)
    OMBRIVANE_TEXT(carrierName, core().carrierName)
    OMBRIVANE_TEXT(price, core().price)
    OMBRIVANE_INTENT(tap, core().tap)

public:
    QString label() const { return carrierName() + ", " + price(); }
};

} // namespace ombrivane::view
