#pragma once

#include "platform/CurlSettings.h"
#include "platform/HttpRequest.h"
#include "platform/Socket.h"

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <string>

namespace ombrivane {

/// One request on its way: libcurl's handle with everything that it points to.
class CurlTransfer {
public:
    CurlTransfer(HttpRequest request, HttpCompletion completion, const CurlSettings& settings);
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;
    ~CurlTransfer();

    CURL* handle() const { return handle_.get(); }

    /// Where it goes.
    const std::string& url() const { return request_.url; }

    /// A connection of its own, closed afterwards, over HTTP/1.1; no redirect.
    void isolate();
    /// Whether its connection is to be its own.
    bool isIsolated() const { return isolated_; }
    /// Goes out over a connected `socket`, which becomes its own; without a socket (-1) it connects.
    void useConnection(Socket socket);
    /// Whether a connection that was opened ahead turned out to be dead before TLS stood on it: nothing has
    /// been said to the server, and the transfer can be started once more over a new one.
    bool canStartAfresh(CURLcode result);
    /// Connections are shared; a redirect is followed a few times, over HTTPS only.
    void shareConnections();

    /// Completes with the answer, or with an error when `result` is one.
    void complete(CURLcode result);
    /// Completes with the error of a request that was given up.
    void abandon();

private:
    struct Free {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };

    int status() const;
    void carryBody();
    /// libcurl asks for what is to be sent next. It cannot ask again for what has been sent.
    static std::size_t give(char* room, std::size_t size, std::size_t count, void* self);
    static std::size_t receive(char* bytes, std::size_t size, std::size_t count, void* self);
    static std::size_t receiveHeader(char* bytes, std::size_t size, std::size_t count, void* self);
    /// Ends a transfer whose bodies have not moved for too long: headers, trailers and informational answers
    /// can be sent for ever. libcurl's own limit of speed is an average over some seconds: it takes an early
    /// burst for a sign of life and a very slow answer for silence.
    static int watch(void* self, curl_off_t toReceive, curl_off_t received, curl_off_t toSend,
                     curl_off_t sent);
    /// Hands libcurl the connected socket in place of the first one that it wants to open.
    static curl_socket_t openSocket(void* self, curlsocktype purpose, curl_sockaddr* address);
    static int adoptSocket(void* self, curl_socket_t socket, curlsocktype purpose);
    void fail(int code, const std::string& text, const std::string& developerText = "");

    HttpRequest request_;
    HttpCompletion completion_;
    std::unique_ptr<CURL, Free> handle_;
    std::unique_ptr<curl_slist, Free> headers_;
    std::size_t piece_ = 0;  ///< that is being sent
    std::size_t offset_ = 0; ///< within it
    bool isolated_ = false;
    Socket connected_ = noSocket; ///< a socket that libcurl has not asked for yet
    Socket adopted_ = noSocket;   ///< the same afterwards; libcurl's own
    std::string received_;
    std::size_t headerBytes_ = 0;
    std::string tooLarge_; ///< what is larger than its limit
    bool silent_ = false;
    curl_off_t moved_ = -1;
    std::chrono::steady_clock::time_point lastMove_;
};

} // namespace ombrivane
