#pragma once

#include "events/HostEvents.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantMap>

namespace ombrivane::view {

/// What happens inside of the component, for QML. It belongs outside of every page, as it is told of what
/// comes after a view has gone too.
///
///     HostEvents { onHappened: event => log.append(event); onCallEnded: call => log.append(call) }
class HostEventsItem : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(HostEvents)

public:
    /// Listens from here on.
    explicit HostEventsItem(QObject* parent = nullptr);

    /// An event, as `Event::json` writes it. On the main thread, soon after it happened.
    Q_SIGNAL void happened(const QVariantMap& event);
    /// A request has ended, as `EndedCall::json` writes it. On the main thread, soon after it did.
    Q_SIGNAL void callEnded(const QVariantMap& call);

private:
    HostEvents::Listening listening_;
};

} // namespace ombrivane::view
