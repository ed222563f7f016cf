// The certificates of one run: an authority of its own and a server certificate, good or bad on purpose.
#pragma once

#include "sandbox/wire/CertificateKind.h"

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

/// "good", "self-signed", "expired", "not-yet-valid", "wrong-host", "wrong-alternative-names", "untrusted".
std::optional<CertificateKind> certificateKindNamed(std::string_view name);

struct CertificateFree {
    void operator()(X509* certificate) const { X509_free(certificate); }
};
struct KeyFree {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};
using Certificate = std::unique_ptr<X509, CertificateFree>;
using PrivateKey = std::unique_ptr<EVP_PKEY, KeyFree>;

struct ServerIdentity {
    PrivateKey key;
    Certificate certificate;
    std::string authorityPem; ///< what a client is told to trust
};

/// Makes fresh keys and certificates for localhost, 127.0.0.1 and ::1. Validity goes by the machine's own
/// clock, because that is what a client compares with.
ServerIdentity makeServerIdentity(CertificateKind kind);

} // namespace ombrivane::sandbox
