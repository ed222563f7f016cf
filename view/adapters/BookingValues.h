#pragma once

#include "adapters/OfferAdapters.h"
#include "adapters/ReadOnlyList.h"
#include "booking/BaggageInformationView.h"
#include "booking/FormColour.h"
#include "booking/JourneyCard.h"
#include "booking/TicketTravellerInfo.h"
#include "dates/Day.h"
#include "platform/DocumentPicture.h"

#include <optional>

namespace ombrivane::view {

/// Values that a page reads and that never change, made by their adapter.
template <class Value, class Lines>
QList<Value*> makeValues(const std::vector<Lines>& lines, QObject* owner) {
    QList<Value*> values;
    for (const auto& line : lines)
        values.append(new Value(line, owner)); // owned by its parent
    return values;
}

/// A marked field is told by the name of its colour.
inline QString shown(FormColour colour) { return formColourNames.at(static_cast<std::size_t>(colour)); }
/// A day as "yyyy-MM-dd", empty while there is none.
inline QString shown(const std::optional<Day>& day) {
    return day ? QString::fromStdString(day->text()) : QString();
}
inline bool shown(const std::optional<DocumentPicture>& picture) { return picture.has_value(); }

/// One leg of a journey.
class LegValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_LINE(connection)
    OMBRIVANE_LINE(carrierLogo)
    OMBRIVANE_LINE(carrier)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(departureAirport)
    OMBRIVANE_LINE(departure)
    OMBRIVANE_LINE(arrivalAirport)
    OMBRIVANE_LINE(arrival)

public:
    LegValue(LegLines lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}

private:
    LegLines lines_;
};

/// One journey of an availability.
class JourneyValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::LegValue> legs READ legs CONSTANT FINAL)
    Q_PROPERTY(QString carrierLogo READ carrierLogo CONSTANT FINAL)
    OMBRIVANE_LINE(originCity)
    OMBRIVANE_LINE(destinationCity)
    OMBRIVANE_LINE(route)
    OMBRIVANE_LINE(date)
    OMBRIVANE_LINE(time)
    OMBRIVANE_LINE(duration)
    OMBRIVANE_LINE(stops)
    OMBRIVANE_LINE(dateIcon)
    OMBRIVANE_LINE(sectionTitle)

public:
    JourneyValue(JourneyCard lines, QObject* parent) :
        QObject(parent), lines_(std::move(lines)), legs_(makeValues<LegValue>(lines_.legs, this)) {}

    QQmlListProperty<LegValue> legs() { return readOnlyList(this, legs_); }
    QString carrierLogo() const {
        return lines_.carrierLogos.empty() ? QString() : shown(lines_.carrierLogos.front());
    }

private:
    JourneyCard lines_;
    QList<LegValue*> legs_;
};

/// The allowances of one journey.
class BaggageValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_LINE(route)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(checkIn)

public:
    BaggageValue(BaggageBlock lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}

private:
    BaggageBlock lines_;
};

/// One journey of a ticket.
class TicketFlightValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_LINE(title)
    OMBRIVANE_LINE(departureCity)
    OMBRIVANE_LINE(departureTime)
    OMBRIVANE_LINE(arrivalCity)
    OMBRIVANE_LINE(arrivalTime)
    OMBRIVANE_LINE(date)
    OMBRIVANE_LINE(cabin)
    OMBRIVANE_LINE(checkIn)

public:
    TicketFlightValue(TicketFlightBlock lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}

private:
    TicketFlightBlock lines_;
};

/// One line of a passenger block.
class TicketLineValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_LINE(leftTitle)
    OMBRIVANE_LINE(leftSubTitle)
    OMBRIVANE_LINE(rightTitle)
    OMBRIVANE_LINE(rightSubTitle)

public:
    TicketLineValue(TicketTravellerInfo lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}

private:
    TicketTravellerInfo lines_;
};

/// One passenger of a ticket.
class TicketPassengerValue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::TicketLineValue> lines READ lines CONSTANT FINAL)
    OMBRIVANE_LINE(title)
    OMBRIVANE_LINE(name)

public:
    TicketPassengerValue(TicketPassengerBlock block, QObject* parent) :
        QObject(parent), lines_(std::move(block)), values_(makeValues<TicketLineValue>(lines_.lines, this)) {}

    QQmlListProperty<TicketLineValue> lines() { return readOnlyList(this, values_); }

private:
    TicketPassengerBlock lines_;
    QList<TicketLineValue*> values_;
};

} // namespace ombrivane::view
