#include "sandbox/wire/Certificates.h"

#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <array>
#include <stdexcept>
#include <utility>

namespace ombrivane::sandbox {

namespace {

constexpr std::array<std::pair<std::string_view, CertificateKind>, 7> kindNames{{
    {"good", CertificateKind::Good},
    {"self-signed", CertificateKind::SelfSigned},
    {"expired", CertificateKind::Expired},
    {"not-yet-valid", CertificateKind::NotYetValid},
    {"wrong-host", CertificateKind::WrongHost},
    {"wrong-alternative-names", CertificateKind::WrongAlternativeNames},
    {"untrusted", CertificateKind::Untrusted},
}};

constexpr long day = 24 * 60 * 60;

/// What a certificate says of its holder.
struct Subject {
    const char* commonName;
    std::string alternativeNames; ///< empty for an authority
    long startsIn = -day;         ///< seconds from now
    long endsIn = 30 * day;
};

struct Authority {
    PrivateKey key;
    Certificate certificate;
};

void check(bool good) {
    if (!good) throw std::runtime_error("OpenSSL cannot make a certificate");
}

PrivateKey makeKey() {
    PrivateKey key(EVP_EC_gen("P-256"));
    check(key != nullptr);
    return key;
}

void addExtension(X509* certificate, X509* issuer, int kind, const std::string& value) {
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()), &X509_EXTENSION_free);
    check(extension != nullptr && X509_add_ext(certificate, extension.get(), -1) == 1);
}

/// Signed by `issuer`, or by itself when that is null.
Certificate makeCertificate(const Subject& subject, EVP_PKEY* key, const Authority* issuer) {
    Certificate certificate(X509_new());
    check(certificate != nullptr);
    X509* raw = certificate.get();
    std::array<unsigned char, 8> random{};
    check(RAND_bytes(random.data(), static_cast<int>(random.size())) == 1);
    std::uint64_t serial = 1;
    for (unsigned char byte : random)
        serial = (serial << 8 | byte) >> 1;
    X509_set_version(raw, X509_VERSION_3);
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(raw), serial);
    X509_gmtime_adj(X509_getm_notBefore(raw), subject.startsIn);
    X509_gmtime_adj(X509_getm_notAfter(raw), subject.endsIn);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(raw),
                               "CN",
                               MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(subject.commonName),
                               -1,
                               -1,
                               0);
    X509* signer = issuer == nullptr ? raw : issuer->certificate.get();
    X509_set_issuer_name(raw, X509_get_subject_name(signer));
    X509_set_pubkey(raw, key);
    addExtension(raw, signer, NID_subject_key_identifier, "hash");
    if (subject.alternativeNames.empty()) {
        addExtension(raw, signer, NID_basic_constraints, "critical,CA:TRUE");
        addExtension(raw, signer, NID_key_usage, "critical,keyCertSign,cRLSign");
    } else {
        addExtension(raw, signer, NID_basic_constraints, "critical,CA:FALSE");
        addExtension(raw, signer, NID_key_usage, "critical,digitalSignature");
        addExtension(raw, signer, NID_ext_key_usage, "serverAuth");
        addExtension(raw, signer, NID_subject_alt_name, subject.alternativeNames);
    }
    check(X509_sign(raw, issuer == nullptr ? key : issuer->key.get(), EVP_sha256()) > 0);
    return certificate;
}

Authority makeAuthority(const char* name) {
    Authority authority;
    authority.key = makeKey();
    authority.certificate = makeCertificate({name, ""}, authority.key.get(), nullptr);
    return authority;
}

std::string pemOf(X509* certificate) {
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), &BIO_free);
    check(PEM_write_bio_X509(memory.get(), certificate) == 1);
    BUF_MEM* bytes = nullptr;
    BIO_get_mem_ptr(memory.get(), &bytes);
    return {bytes->data, bytes->length};
}

Subject serverSubject(CertificateKind kind) {
    Subject subject{"localhost", "DNS:localhost,IP:127.0.0.1,IP:::1"};
    if (kind == CertificateKind::Expired) {
        subject.startsIn = -30 * day;
        subject.endsIn = -day;
    } else if (kind == CertificateKind::NotYetValid) {
        subject.startsIn = day;
    } else if (kind == CertificateKind::WrongHost) {
        subject.commonName = "other.example";
        subject.alternativeNames = "DNS:other.example";
    } else if (kind == CertificateKind::WrongAlternativeNames) {
        subject.alternativeNames = "DNS:other.example";
    }
    return subject;
}

} // namespace

std::optional<CertificateKind> certificateKindNamed(std::string_view name) {
    for (const auto& [known, kind] : kindNames)
        if (known == name) return kind;
    return std::nullopt;
}

ServerIdentity makeServerIdentity(CertificateKind kind) {
    const Authority published = makeAuthority("Sandbox Authority");
    const Authority stranger = makeAuthority("Another Authority");
    const Authority* issuer = &published;
    if (kind == CertificateKind::Untrusted) issuer = &stranger;
    if (kind == CertificateKind::SelfSigned) issuer = nullptr;
    ServerIdentity identity;
    identity.key = makeKey();
    identity.certificate = makeCertificate(serverSubject(kind), identity.key.get(), issuer);
    identity.authorityPem = pemOf(published.certificate.get());
    return identity;
}

} // namespace ombrivane::sandbox
