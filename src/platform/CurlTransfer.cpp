#include "platform/CurlTransfer.h"

#include "base/Attempted.h"
#include "base/ErrorDomains.h"
#include "base/ErrorTexts.h"
#include "platform/TlsRules.h"

#include <utility>

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

/// What a customer reads; curl's own words are for those who know it.
const char* textOf(CURLcode result) {
    switch (result) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
        return errorText::notReached;
    case CURLE_OPERATION_TIMEDOUT:
        return errorText::timedOut;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
        return errorText::notSecured;
    default:
        return errorText::connectionLost;
    }
}

template <class Value> void set(CURL* handle, CURLoption option, Value value) {
    curl_easy_setopt(handle, option, value);
}

} // namespace

CurlTransfer::CurlTransfer(HttpRequest request, HttpCompletion completion, const CurlSettings& settings) :
    request_(std::move(request)), completion_(std::move(completion)), handle_(curl_easy_init()) {
    CURL* curl = handle();
    for (const auto& [name, value] : request_.headers) {
        std::string line = name;
        line.append(": ").append(value);
        headers_.reset(curl_slist_append(headers_.release(), line.c_str()));
    }
    // Without this line a larger body would wait for the server's "100 Continue".
    headers_.reset(curl_slist_append(headers_.release(), "Expect:"));

    fixTls(curl);
    if (!settings.caFile.empty()) {
        set(curl, CURLOPT_CAINFO, settings.caFile.c_str());
        set(curl, CURLOPT_CAPATH, nullptr);
    }
    // Empty is "none"; without a value libcurl asks the environment.
    set(curl, CURLOPT_PROXY, settings.proxy.c_str());
    set(curl, CURLOPT_NOPROXY, "");
    set(curl, CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    set(curl, CURLOPT_PROTOCOLS_STR, "https");
    set(curl, CURLOPT_URL, request_.url.c_str());
    set(curl, CURLOPT_HTTPHEADER, headers_.get());
    if (request_.method == "POST") carryBody();
    set(curl, CURLOPT_NOSIGNAL, 1L);
    // A name server that says nothing holds up nobody: its thread is left behind, it ends by itself.
    set(curl, CURLOPT_QUICK_EXIT, 1L);
    set(curl, CURLOPT_ACCEPT_ENCODING, "");
    set(curl, CURLOPT_CONNECTTIMEOUT, static_cast<long>(request_.timeoutInterval.count()));
    set(curl, CURLOPT_NOPROGRESS, 0L);
    set(curl, CURLOPT_XFERINFOFUNCTION, &CurlTransfer::watch);
    set(curl, CURLOPT_XFERINFODATA, this);
    set(curl, CURLOPT_TIMEOUT, static_cast<long>(request_.wholeInterval.count()));
    set(curl, CURLOPT_WRITEFUNCTION, &CurlTransfer::receive);
    set(curl, CURLOPT_WRITEDATA, this);
    set(curl, CURLOPT_HEADERFUNCTION, &CurlTransfer::receiveHeader);
    set(curl, CURLOPT_HEADERDATA, this);
}

CurlTransfer::~CurlTransfer() {
    if (connected_ != noSocket) closeSocket(connected_);
}

void CurlTransfer::carryBody() {
    if (request_.body) request_.pieces.push_back(std::move(*request_.body));
    curl_off_t size = 0;
    for (const auto& piece : request_.pieces)
        size += static_cast<curl_off_t>(piece.size());
    set(handle(), CURLOPT_POST, 1L);
    set(handle(), CURLOPT_POSTFIELDSIZE_LARGE, size);
    set(handle(), CURLOPT_READFUNCTION, &CurlTransfer::give);
    set(handle(), CURLOPT_READDATA, this);
}

std::size_t CurlTransfer::give(char* room, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    auto& pieces = transfer.request_.pieces;
    std::size_t given = 0;
    while (given < size * count && transfer.piece_ < pieces.size()) {
        std::string& piece = pieces[transfer.piece_];
        const std::size_t length = piece.copy(room + given, size * count - given, transfer.offset_);
        given += length;
        transfer.offset_ += length;
        if (transfer.offset_ < piece.size()) continue;
        piece = std::string(); // with its memory
        ++transfer.piece_;
        transfer.offset_ = 0;
    }
    return given;
}

void CurlTransfer::isolate() {
    isolated_ = true;
    // A stream of HTTP/2 that the server refuses is sent again by libcurl itself, read or not.
    set(handle(), CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    set(handle(), CURLOPT_FRESH_CONNECT, 1L);
    set(handle(), CURLOPT_FORBID_REUSE, 1L);
    set(handle(), CURLOPT_FOLLOWLOCATION, 0L);
}

void CurlTransfer::useConnection(Socket socket) {
    if (socket == noSocket) return;
    connected_ = socket;
    set(handle(), CURLOPT_OPENSOCKETFUNCTION, &CurlTransfer::openSocket);
    set(handle(), CURLOPT_OPENSOCKETDATA, this);
    set(handle(), CURLOPT_SOCKOPTFUNCTION, &CurlTransfer::adoptSocket);
    set(handle(), CURLOPT_SOCKOPTDATA, this);
}

bool CurlTransfer::canStartAfresh(CURLcode result) {
    if (std::exchange(adopted_, noSocket) == noSocket) return false;
    if (result != CURLE_SSL_CONNECT_ERROR && result != CURLE_RECV_ERROR && result != CURLE_SEND_ERROR)
        return false;
    curl_off_t secured = 0;
    curl_easy_getinfo(handle(), CURLINFO_APPCONNECT_TIME_T, &secured);
    return secured == 0;
}

curl_socket_t CurlTransfer::openSocket(void* self, curlsocktype /*purpose*/, curl_sockaddr* address) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    if (transfer.connected_ == noSocket)
        return newSocket(address->family, address->socktype, address->protocol);
    transfer.adopted_ = transfer.connected_;
    return std::exchange(transfer.connected_, noSocket);
}

int CurlTransfer::adoptSocket(void* self, curl_socket_t socket, curlsocktype /*purpose*/) {
    return socket == static_cast<CurlTransfer*>(self)->adopted_ ? CURL_SOCKOPT_ALREADY_CONNECTED
                                                                : CURL_SOCKOPT_OK;
}

void CurlTransfer::shareConnections() {
    set(handle(), CURLOPT_REDIR_PROTOCOLS_STR, "https");
    set(handle(), CURLOPT_FOLLOWLOCATION, 1L);
    set(handle(), CURLOPT_MAXREDIRS, 5L);
}

std::size_t CurlTransfer::receive(char* bytes, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    const std::size_t length = size * count;
    if (length > transfer.request_.answerBytes - transfer.received_.size()) {
        transfer.tooLarge_ =
            "the body has more than " + std::to_string(transfer.request_.answerBytes) + " bytes";
        curl_off_t announced = -1; // as it travels, so perhaps packed
        curl_easy_getinfo(transfer.handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
        if (announced >= 0) transfer.tooLarge_ += ", " + std::to_string(announced) + " announced";
        return 0;
    }
    // Nothing may be thrown through libcurl.
    const auto failure = attempted([&] { transfer.received_.append(bytes, length); });
    return failure ? 0 : length;
}

std::size_t CurlTransfer::receiveHeader(char* /*bytes*/, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    transfer.headerBytes_ += size * count;
    if (transfer.headerBytes_ <= limits::headerBytes) return size * count;
    transfer.tooLarge_ =
        "headers and trailers have more than " + std::to_string(limits::headerBytes) + " bytes";
    return 0;
}

int CurlTransfer::watch(void* self, curl_off_t, curl_off_t received, curl_off_t, curl_off_t sent) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    long request = 0;
    curl_easy_getinfo(transfer.handle(), CURLINFO_REQUEST_SIZE, &request);
    const curl_off_t moved = received + sent + request;
    const auto now = std::chrono::steady_clock::now();
    if (moved != transfer.moved_) {
        transfer.moved_ = moved;
        transfer.lastMove_ = now;
    }
    transfer.silent_ = now - transfer.lastMove_ >= transfer.request_.timeoutInterval;
    return transfer.silent_ ? 1 : 0;
}

void CurlTransfer::fail(int code, const std::string& text, const std::string& developerText) {
    contained([&] {
        completion_({std::nullopt, Error{errorDomain::network, code, text, developerText}, status()});
    });
}

int CurlTransfer::status() const {
    long status = 0;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    return static_cast<int>(status);
}

void CurlTransfer::complete(CURLcode result) {
    if (!tooLarge_.empty()) return fail(CURLE_FILESIZE_EXCEEDED, errorText::answerTooLarge, tooLarge_);
    if (silent_) {
        return fail(CURLE_OPERATION_TIMEDOUT,
                    textOf(CURLE_OPERATION_TIMEDOUT),
                    "no body moved for " + std::to_string(request_.timeoutInterval.count()) + " s");
    }
    if (result != CURLE_OK) return fail(result, textOf(result), curl_easy_strerror(result));
    contained([&] { completion_({std::move(received_), std::nullopt, status()}); });
}

void CurlTransfer::abandon() { fail(CURLE_ABORTED_BY_CALLBACK, errorText::requestCancelled); }

} // namespace ombrivane
