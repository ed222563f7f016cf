// Accepts TLS connections on the loopback interface and gives each whole request to a handler.
#pragma once

#include "sandbox/wire/Certificates.h"
#include "sandbox/wire/HttpMessage.h"
#include "sandbox/wire/RequestLog.h"
#include "sandbox/wire/TlsConnection.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

namespace ombrivane::sandbox {

class HttpsServer {
public:
    /// Answers one request on its connection, which is told to be the first one there or a later one; true
    /// keeps the connection for another request. Called on the connection's own thread, for several
    /// connections at once.
    using Handler = std::function<bool(const HttpRequest&, bool isFirst, TlsConnection&)>;

    /// Listens on 127.0.0.1 and, where the machine has it, ::1. Port 0 takes a free one. Throws
    /// `std::system_error` when the port is taken.
    HttpsServer(std::uint16_t port, const ServerIdentity& identity, RequestLog& log, Handler handler);

    /// Ends all connections, also those that are being answered, and waits for their threads.
    ~HttpsServer();
    HttpsServer(const HttpsServer&) = delete;
    HttpsServer& operator=(const HttpsServer&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    struct ContextFree {
        void operator()(SSL_CTX* context) const { SSL_CTX_free(context); }
    };

    void acceptConnections();
    void start(int socket);
    void serve(int socket);
    void forget(int socket);

    RequestLog& log_;
    Handler handler_;
    std::unique_ptr<SSL_CTX, ContextFree> context_;
    std::uint16_t port_ = 0;
    std::vector<int> listeners_;
    int stopSignal_ = -1;
    std::mutex mutex_;
    std::condition_variable allGone_;
    std::set<int> open_;
    std::thread acceptor_;
};

} // namespace ombrivane::sandbox
