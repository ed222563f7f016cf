#pragma once

#include "sandbox/wire/Certificates.h"
#include "sandbox/wire/TlsConnection.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace ombrivane::network {

/// A server that says what a test wants, byte by byte, where the sandbox would speak too well.
class TlsServer {
public:
    /// Speaks on one connection, on a thread of its own; the connection ends when it returns.
    using Talk = std::function<void(sandbox::TlsConnection&)>;
    using Prepare = std::function<void(SSL_CTX*)>;

    /// Listens on 127.0.0.1. `prepare` may change what TLS it speaks.
    explicit TlsServer(Talk talk, const Prepare& prepare = nullptr);
    TlsServer(const TlsServer&) = delete;
    TlsServer& operator=(const TlsServer&) = delete;
    ~TlsServer();

    std::string url(const std::string& path = "/") const;
    const std::string& caFile() const { return caFile_; }
    /// How many connections were opened, whatever became of them.
    int connections() const { return connections_; }

private:
    void accept();
    void serve(int socket);

    Talk talk_;
    std::string caFile_;
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_{nullptr, &SSL_CTX_free};
    int listener_ = -1;
    std::atomic<int> connections_ = 0;
    std::vector<int> sockets_; ///< stay open until the end, so that their numbers are not given out again
    std::vector<std::thread> threads_;
    std::thread acceptor_;
};

/// A talk that says nothing until the client goes or the server ends.
void saysNothing(sandbox::TlsConnection& connection);

/// The HTTP/1.1 request whose first bytes are in `bytes`; nothing when it does not come whole.
std::optional<std::string> readRequest(sandbox::TlsConnection& connection, std::string bytes = "");

} // namespace ombrivane::network
