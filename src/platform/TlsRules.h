#pragma once

#include <curl/curl.h>

namespace ombrivane {

/// Fixes how `handle` speaks TLS: version 1.2 at least, the library's own choice of ciphers, and no log of
/// the keys, whatever the environment and a configuration that it names ask for. Where libcurl was built with
/// another library than OpenSSL, the version alone is fixed.
void fixTls(CURL* handle);

} // namespace ombrivane
