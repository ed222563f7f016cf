#include "sandbox/wire/TlsConnection.h"

#include <openssl/err.h>

#include <algorithm>
#include <limits>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane::sandbox {

TlsConnection::TlsConnection(int socket, SSL_CTX& context) : socket_(socket), ssl_(SSL_new(&context)) {
    SSL_set_fd(ssl_.get(), socket_);
}

TlsConnection::~TlsConnection() {
    ssl_.reset();
    ::close(socket_);
}

bool TlsConnection::handshake() {
    ERR_clear_error();
    return SSL_accept(ssl_.get()) == 1;
}

std::size_t TlsConnection::read(char* buffer, std::size_t size) {
    ERR_clear_error();
    std::size_t count = 0;
    return SSL_read_ex(ssl_.get(), buffer, size, &count) == 1 ? count : 0;
}

bool TlsConnection::write(std::string_view bytes) {
    if (bytes.empty()) return true;
    ERR_clear_error();
    std::size_t written = 0;
    return SSL_write_ex(ssl_.get(), bytes.data(), bytes.size(), &written) == 1;
}

bool TlsConnection::pause(std::chrono::milliseconds time) const {
    const auto limit = std::chrono::milliseconds(std::numeric_limits<int>::max());
    pollfd gone{socket_, POLLRDHUP, 0};
    return ::poll(&gone, 1, static_cast<int>(std::min(time, limit).count())) == 0;
}

void TlsConnection::close() {
    ERR_clear_error();
    SSL_shutdown(ssl_.get());
    ::shutdown(socket_, SHUT_WR);
    // A socket closed with unread bytes sends a reset, which could overtake the answer: read until the client
    // ends.
    const timeval patience{1, 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    char discarded[4096];
    while (::recv(socket_, discarded, sizeof discarded, 0) > 0) {
    }
}

void TlsConnection::reset() {
    const linger abort{1, 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &abort, sizeof abort);
}

} // namespace ombrivane::sandbox
