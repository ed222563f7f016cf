#pragma once

#include "base/Api.h"
#include "base/Error.h"

#include <cstdint>
#include <string_view>

namespace ombrivane {

/// What a host decides by when the component failed: every domain and code of `base/ErrorDomains.h` is one of
/// these.
enum class ErrorKind : std::uint8_t {
    unsupportedSystem, ///< below iOS 14: not to be offered on this device
    noConnection,      ///< the device is offline; nothing was sent
    serviceNotReached, ///< the service could not be spoken to: no such host, nobody listens, no agreement on
                       ///< TLS
    serviceNotTrusted, ///< its certificate is not trusted, or there are no certificates to trust by
    timedOut,          ///< no answer in time; what was asked may have happened
    connectionLost,    ///< the connection ended before the answer was there; what was asked may have happened
    answerTooLarge,    ///< longer than `limits` allow
    answerNotUnderstood, ///< it has another form than agreed; what was asked may have happened
    credentialsRefused,  ///< the wallet's client id and secret
    refused,             ///< the service said no, in the words of the error
    answerMissing,       ///< the service answered with nothing; what was asked may have happened
    invalidRequest,      ///< what was to be sent could not be written or addressed; nothing was sent
    unforeseen,          ///< anything else, memory that was not there for instance
};

/// The kind of `error`; a domain that is not the component's is unforeseen. Any thread.
OMBRIVANE_API ErrorKind kindOf(const Error& error);

/// As `ErrorKind` writes it: "timedOut".
OMBRIVANE_API std::string_view nameOf(ErrorKind kind);

/// Whether the service cannot have done what it was asked: nothing reached it, or it said no. Where this is
/// false after a reservation, one may have been made.
OMBRIVANE_API bool cannotHaveHappened(ErrorKind kind);

} // namespace ombrivane
