#pragma once

#include "base/ErrorKind.h"

#include <QObject>
#include <QQmlEngine>

/// `ErrorKind.TimedOut` and its like for QML, by which a wallet decides in `onFailed`.
namespace ombrivane::view::errorKinds {
Q_NAMESPACE
QML_NAMED_ELEMENT(ErrorKind)

/// `ombrivane::ErrorKind`, in the letters that QML wants.
enum Kind {
    UnsupportedSystem = static_cast<int>(ErrorKind::unsupportedSystem), ///< not to be offered here
    NoConnection = static_cast<int>(ErrorKind::noConnection),           ///< the device is offline
    ServiceNotReached = static_cast<int>(ErrorKind::serviceNotReached), ///< nobody to speak to
    ServiceNotTrusted = static_cast<int>(ErrorKind::serviceNotTrusted), ///< its certificate is not trusted
    TimedOut = static_cast<int>(ErrorKind::timedOut),                   ///< no answer in time
    ConnectionLost = static_cast<int>(ErrorKind::connectionLost),       ///< it ended before the answer
    AnswerTooLarge = static_cast<int>(ErrorKind::answerTooLarge),       ///< longer than allowed
    AnswerNotUnderstood = static_cast<int>(ErrorKind::answerNotUnderstood), ///< of another form than agreed
    CredentialsRefused = static_cast<int>(ErrorKind::credentialsRefused),   ///< client id and secret
    Refused = static_cast<int>(ErrorKind::refused),                         ///< the service said no
    AnswerMissing = static_cast<int>(ErrorKind::answerMissing),             ///< it answered with nothing
    InvalidRequest = static_cast<int>(ErrorKind::invalidRequest),           ///< nothing was sent
    Unforeseen = static_cast<int>(ErrorKind::unforeseen),                   ///< anything else
};
Q_ENUM_NS(Kind)

} // namespace ombrivane::view::errorKinds
