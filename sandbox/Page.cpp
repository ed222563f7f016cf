#include "sandbox/Page.h"

#include <openssl/evp.h>

#include <array>
#include <string>

namespace ombrivane::sandbox {

namespace {

/// The source of a content security policy that names what stands between two tags of the page.
std::string hashOf(std::string_view start, std::string_view end) {
    const std::size_t from = pageText.find(start) + start.size();
    const std::string_view text = pageText.substr(from, pageText.find(end, from) - from);
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int size = 0;
    EVP_Digest(text.data(), text.size(), digest.data(), &size, EVP_sha256(), nullptr);
    std::array<unsigned char, 2 * EVP_MAX_MD_SIZE> base64{};
    const int length = EVP_EncodeBlock(base64.data(), digest.data(), static_cast<int>(size));
    return "'sha256-" + std::string(base64.begin(), base64.begin() + length) + "'";
}

} // namespace

HttpAnswer pageAnswer() {
    static const std::string policy =
        "default-src 'none'; script-src " + hashOf("<script>", "</script>") + "; style-src " +
        hashOf("<style>", "</style>") +
        "; connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
    return {200,
            {{"Content-Type", "text/html; charset=utf-8"},
             {"Content-Security-Policy", policy},
             {"X-Content-Type-Options", "nosniff"},
             {"Referrer-Policy", "no-referrer"},
             {"Cache-Control", "no-store"}},
            std::string(pageText)};
}

} // namespace ombrivane::sandbox
