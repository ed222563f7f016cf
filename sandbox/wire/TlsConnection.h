// One accepted connection: TLS over a socket that it owns, with every way of ending it that a fault needs.
#pragma once

#include <openssl/ssl.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string_view>

namespace ombrivane::sandbox {

class TlsConnection {
public:
    TlsConnection(int socket, SSL_CTX& context);
    ~TlsConnection();
    TlsConnection(const TlsConnection&) = delete;
    TlsConnection& operator=(const TlsConnection&) = delete;

    /// False when the client does not accept the certificate, speaks no TLS, or leaves.
    bool handshake();

    /// Reads what is there, at most `size` bytes; 0 at the end of the connection.
    std::size_t read(char* buffer, std::size_t size);

    /// False when the client has gone.
    bool write(std::string_view bytes);

    /// Waits; false as soon as the client goes or the server stops.
    [[nodiscard]] bool pause(std::chrono::milliseconds time) const;

    /// Ends TLS and the connection in order.
    void close();

    /// Ends the connection with a TCP reset, whatever was written before.
    void reset();

private:
    struct SslFree {
        void operator()(SSL* ssl) const { SSL_free(ssl); }
    };

    int socket_;
    std::unique_ptr<SSL, SslFree> ssl_;
};

} // namespace ombrivane::sandbox
