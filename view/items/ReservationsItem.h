#pragma once

#include "keyed/Observable.h"

#include <QObject>
#include <QQmlEngine>

namespace ombrivane::view {

/// The reservations that the wallet has not taken yet, for QML. It belongs where the wallet keeps its
/// receipts, outside of every page: a reservation that is made after its view has gone arrives here all the
/// same.
///
///     Reservations { onArrived: receipts.keep(take()) }
class ReservationsItem : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Reservations)
    /// How many wait.
    Q_PROPERTY(int pending READ pending NOTIFY pendingChanged FINAL)

public:
    explicit ReservationsItem(QObject* parent = nullptr);

    int pending() const;
    /// Hands out the reservation that has waited longest, as JSON; empty where none waits. Each is handed out
    /// once, also where several ask.
    Q_INVOKABLE QString take();

    Q_SIGNAL void pendingChanged();
    /// At least one waits: sent when one comes, when one was taken and another is left, and soon after this
    /// was made where one waits already. So a handler that takes one takes them all in the end.
    Q_SIGNAL void arrived();

private:
    void tell();

    Subscription watch_;
};

} // namespace ombrivane::view
