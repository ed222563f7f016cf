#include "platform/TlsRules.h"

#include <openssl/ssl.h>

#include <string_view>

namespace ombrivane {
namespace {

/// 112 bits; certificates signed with SHA-1 are below it.
constexpr int securityLevel = 2;

/// Undoes what a configuration named by OPENSSL_CONF did to a new context, and what libcurl did on behalf of
/// SSLKEYLOGFILE.
CURLcode fixContext(CURL* /*handle*/, void* context, void* /*none*/) {
    auto* tls = static_cast<SSL_CTX*>(context);
    SSL_CTX_set_keylog_callback(tls, nullptr);
    SSL_CTX_set_security_level(tls, securityLevel);
    SSL_CTX_clear_options(tls, SSL_OP_ALLOW_UNSAFE_LEGACY_RENEGOTIATION | SSL_OP_LEGACY_SERVER_CONNECT);
    const bool fixed = SSL_CTX_set_min_proto_version(tls, TLS1_2_VERSION) == 1 &&
                       SSL_CTX_set_cipher_list(tls, "DEFAULT") == 1 &&
                       SSL_CTX_set_ciphersuites(tls, TLS_DEFAULT_CIPHERSUITES) == 1;
    return fixed ? CURLE_OK : CURLE_SSL_CIPHER;
}

bool isOpenSsl() {
    const char* library = curl_version_info(CURLVERSION_NOW)->ssl_version;
    return library != nullptr && std::string_view(library).starts_with("OpenSSL/");
}

} // namespace

void fixTls(CURL* handle) {
    curl_easy_setopt(handle, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    if (isOpenSsl()) curl_easy_setopt(handle, CURLOPT_SSL_CTX_FUNCTION, &fixContext);
}

} // namespace ombrivane
