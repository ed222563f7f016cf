// Which certificate the sandbox shows: a good one, or a bad one on purpose.
#pragma once

namespace ombrivane::sandbox {

/// What a client is shown when it connects.
enum class CertificateKind {
    Good,                  ///< signed by the published authority, for localhost, 127.0.0.1 and ::1
    SelfSigned,            ///< signed by itself
    Expired,               ///< its time is over
    NotYetValid,           ///< its time has not begun
    WrongHost,             ///< made out to another name
    WrongAlternativeNames, ///< common name localhost, but other alternative names
    Untrusted,             ///< signed by an authority other than the published one
};

} // namespace ombrivane::sandbox
