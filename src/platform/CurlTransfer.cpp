#include "platform/CurlTransfer.h"

#include "support/ErrorDomains.h"
#include "support/Fault.h"

namespace ombrivane {
namespace {

static_assert(static_cast<int>(NetworkError::hostNotFound) == CURLE_COULDNT_RESOLVE_HOST);
static_assert(static_cast<int>(NetworkError::notConnected) == CURLE_COULDNT_CONNECT);
static_assert(static_cast<int>(NetworkError::timedOut) == CURLE_OPERATION_TIMEDOUT);
static_assert(static_cast<int>(NetworkError::notSecured) == CURLE_SSL_CONNECT_ERROR);
static_assert(static_cast<int>(NetworkError::cancelled) == CURLE_ABORTED_BY_CALLBACK);
static_assert(static_cast<int>(NetworkError::endedEarly) == CURLE_GOT_NOTHING);
static_assert(static_cast<int>(NetworkError::broken) == CURLE_RECV_ERROR);
static_assert(static_cast<int>(NetworkError::notTrusted) == CURLE_PEER_FAILED_VERIFICATION);
static_assert(static_cast<int>(NetworkError::tooLarge) == CURLE_FILESIZE_EXCEEDED);
static_assert(static_cast<int>(NetworkError::noCertificates) == CURLE_SSL_CACERT_BADFILE);

constexpr const char* tooLargeText = "The answer is too large.";
constexpr const char* abandonedText = "The request was cancelled.";

/// What a customer reads; curl's own words are for those who know it.
const char* textOf(CURLcode result) {
    switch (result) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
        return "The booking service could not be reached.";
    case CURLE_OPERATION_TIMEDOUT:
        return "The booking service did not answer in time.";
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
        return "A secure connection to the booking service could not be made.";
    default:
        return "The connection to the booking service was lost.";
    }
}

template <class Value> void set(CURL* handle, CURLoption option, Value value) {
    curl_easy_setopt(handle, option, value);
}

} // namespace

CurlTransfer::CurlTransfer(HttpRequest request, HttpCompletion completion, std::size_t limit) :
    request_(std::move(request)),
    completion_(std::move(completion)),
    limit_(limit),
    handle_(curl_easy_init()) {
    CURL* curl = handle();
    for (const auto& [name, value] : request_.headers) {
        std::string line = name;
        line.append(": ").append(value);
        headers_.reset(curl_slist_append(headers_.release(), line.c_str()));
    }
    // Without this line a larger body would wait for the server's "100 Continue".
    headers_.reset(curl_slist_append(headers_.release(), "Expect:"));

    set(curl, CURLOPT_URL, request_.url.c_str());
    set(curl, CURLOPT_HTTPHEADER, headers_.get());
    if (request_.method == "POST") {
        const std::string empty;
        const std::string& body = request_.body ? *request_.body : empty;
        set(curl, CURLOPT_POST, 1L);
        set(curl, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
        set(curl, request_.body ? CURLOPT_POSTFIELDS : CURLOPT_COPYPOSTFIELDS, body.c_str());
    }
    set(curl, CURLOPT_NOSIGNAL, 1L);
    set(curl, CURLOPT_ACCEPT_ENCODING, "");
    set(curl, CURLOPT_CONNECTTIMEOUT, static_cast<long>(request_.timeoutInterval.count()));
    set(curl, CURLOPT_NOPROGRESS, 0L);
    set(curl, CURLOPT_XFERINFOFUNCTION, &CurlTransfer::watch);
    set(curl, CURLOPT_XFERINFODATA, this);
    set(curl, CURLOPT_TIMEOUT, static_cast<long>(request_.wholeInterval.count()));
    set(curl, CURLOPT_WRITEFUNCTION, &CurlTransfer::receive);
    set(curl, CURLOPT_WRITEDATA, this);
}

void CurlTransfer::trust(const std::string& file) {
    set(handle(), CURLOPT_CAINFO, file.c_str());
    set(handle(), CURLOPT_CAPATH, nullptr);
}

void CurlTransfer::isolate() {
    set(handle(), CURLOPT_PROTOCOLS_STR, "https");
    set(handle(), CURLOPT_FRESH_CONNECT, 1L);
    set(handle(), CURLOPT_FORBID_REUSE, 1L);
    set(handle(), CURLOPT_FOLLOWLOCATION, 0L);
}

void CurlTransfer::shareConnections() {
    set(handle(), CURLOPT_PROTOCOLS_STR, "https,http");
    set(handle(), CURLOPT_REDIR_PROTOCOLS_STR, "https,http");
    set(handle(), CURLOPT_FOLLOWLOCATION, 1L);
    set(handle(), CURLOPT_MAXREDIRS, 5L);
}

std::size_t CurlTransfer::receive(char* bytes, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    const std::size_t length = size * count;
    if (length > transfer.limit_ - transfer.received_.size()) {
        transfer.tooLarge_ = true;
        return 0;
    }
    transfer.received_.append(bytes, length);
    return length;
}

int CurlTransfer::watch(void* self, curl_off_t, curl_off_t received, curl_off_t, curl_off_t sent) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    long head = 0;
    long request = 0;
    curl_easy_getinfo(transfer.handle(), CURLINFO_HEADER_SIZE, &head);
    curl_easy_getinfo(transfer.handle(), CURLINFO_REQUEST_SIZE, &request);
    const curl_off_t moved = received + sent + head + request;
    const auto now = std::chrono::steady_clock::now();
    if (moved != transfer.moved_) {
        transfer.moved_ = moved;
        transfer.lastMove_ = now;
    }
    transfer.silent_ = now - transfer.lastMove_ >= transfer.request_.timeoutInterval;
    return transfer.silent_ ? 1 : 0;
}

void CurlTransfer::fail(int code, const std::string& text, const std::string& developerText) {
    guarded([&] { completion_({std::nullopt, Error{errorDomain::network, code, text, developerText}}); });
}

void CurlTransfer::complete(CURLcode result) {
    if (tooLarge_) return fail(CURLE_FILESIZE_EXCEEDED, tooLargeText);
    if (silent_) result = CURLE_OPERATION_TIMEDOUT;
    if (result != CURLE_OK) return fail(result, textOf(result), curl_easy_strerror(result));
    guarded([&] { completion_({std::move(received_), std::nullopt}); });
}

void CurlTransfer::abandon() { fail(CURLE_ABORTED_BY_CALLBACK, abandonedText); }

} // namespace ombrivane
