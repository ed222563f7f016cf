#pragma once

#include "appearance/AppearanceTable.h"
#include "items/ErrorKinds.h"
#include "items/HostEventsItem.h"
#include "items/OmbrivaneSession.h"
#include "items/ReservationsItem.h"

#include <QQmlEngine>

// The classes that a wallet may name in QML, beside the item itself.
namespace ombrivane::view {

struct PublicAppearance {
    Q_GADGET
    QML_FOREIGN(ombrivane::view::AppearanceTable)
    QML_NAMED_ELEMENT(Appearance)
};

struct PublicSession {
    Q_GADGET
    QML_FOREIGN(ombrivane::view::OmbrivaneSession)
    QML_NAMED_ELEMENT(OmbrivaneSession)
};

struct PublicReservations {
    Q_GADGET
    QML_FOREIGN(ombrivane::view::ReservationsItem)
    QML_NAMED_ELEMENT(Reservations)
};

struct PublicHostEvents {
    Q_GADGET
    QML_FOREIGN(ombrivane::view::HostEventsItem)
    QML_NAMED_ELEMENT(HostEvents)
};

namespace publicErrorKinds {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(ombrivane::view::errorKinds)
QML_NAMED_ELEMENT(ErrorKind)
} // namespace publicErrorKinds

} // namespace ombrivane::view
