#include "items/ReservationsItem.h"

#include "session/Reservations.h"

#include <QPointer>

namespace ombrivane::view {

ReservationsItem::ReservationsItem(QObject* parent) :
    QObject(parent), watch_(Reservations::shared().observe([this] { tell(); })) {}

int ReservationsItem::pending() const { return static_cast<int>(Reservations::shared().pending()); }

QString ReservationsItem::take() {
    const auto reservation = Reservations::shared().take();
    return reservation ? QString::fromStdString(reservation->dump()) : QString();
}

/// A handler may delete this.
void ReservationsItem::tell() {
    const QPointer<ReservationsItem> self(this);
    emit pendingChanged();
    if (self && pending() > 0) emit arrived();
}

} // namespace ombrivane::view
