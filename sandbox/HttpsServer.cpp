#include "sandbox/HttpsServer.h"

#include "sandbox/control/Delivery.h"
#include "sandbox/wire/Refusal.h"
#include "sandbox/wire/RequestReader.h"

#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane::sandbox {

namespace {

/// A listening socket on the loopback address of that family, or -1 with `errno` set.
int listenOn(int family, std::uint16_t port) {
    sockaddr_storage address{};
    socklen_t size = 0;
    if (family == AF_INET) {
        auto& v4 = reinterpret_cast<sockaddr_in&>(address);
        v4.sin_family = AF_INET;
        v4.sin_port = htons(port);
        v4.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        size = sizeof v4;
    } else {
        auto& v6 = reinterpret_cast<sockaddr_in6&>(address);
        v6.sin6_family = AF_INET6;
        v6.sin6_port = htons(port);
        v6.sin6_addr = in6addr_loopback;
        size = sizeof v6;
    }
    const int listener = ::socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (listener < 0) return -1;
    const int on = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (family == AF_INET6) ::setsockopt(listener, IPPROTO_IPV6, IPV6_V6ONLY, &on, sizeof on);
    if (::bind(listener, reinterpret_cast<sockaddr*>(&address), size) == 0 && ::listen(listener, 128) == 0)
        return listener;
    const int reason = errno;
    ::close(listener);
    errno = reason;
    return -1;
}

std::uint16_t portOf(int listener) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
}

/// Both loopback addresses at one port. A free port of IPv4 may be taken in IPv6, so a free one is tried for.
std::vector<int> listenOnLoopback(std::uint16_t port) {
    for (int attempt = 0; attempt < 16; ++attempt) {
        const int v4 = listenOn(AF_INET, port);
        if (v4 < 0) break;
        const int v6 = listenOn(AF_INET6, portOf(v4));
        if (v6 >= 0) return {v4, v6};
        if (errno != EADDRINUSE) return {v4};
        ::close(v4);
        errno = EADDRINUSE;
        if (port != 0) break;
    }
    throw std::system_error(errno, std::generic_category(), "cannot listen on the loopback interface");
}

} // namespace

HttpsServer::HttpsServer(std::uint16_t port, const ServerIdentity& identity, RequestLog& log,
                         Handler handler) :
    log_(log), handler_(std::move(handler)), context_(SSL_CTX_new(TLS_server_method())) {
    SSL_CTX_set_min_proto_version(context_.get(), TLS1_2_VERSION);
    if (SSL_CTX_use_certificate(context_.get(), identity.certificate.get()) != 1 ||
        SSL_CTX_use_PrivateKey(context_.get(), identity.key.get()) != 1)
        throw std::runtime_error("the server certificate cannot be used");
    listeners_ = listenOnLoopback(port);
    port_ = portOf(listeners_.front());
    stopSignal_ = ::eventfd(0, EFD_CLOEXEC);
    acceptor_ = std::thread([this] { acceptConnections(); });
}

HttpsServer::~HttpsServer() {
    const std::uint64_t one = 1;
    if (::write(stopSignal_, &one, sizeof one) != sizeof one) std::terminate();
    acceptor_.join();
    for (int listener : listeners_)
        ::close(listener);
    ::close(stopSignal_);
    std::unique_lock lock(mutex_);
    for (int socket : open_)
        ::shutdown(socket, SHUT_RDWR);
    allGone_.wait(lock, [this] { return open_.empty(); });
}

void HttpsServer::acceptConnections() {
    std::vector<pollfd> waits{{stopSignal_, POLLIN, 0}};
    for (int listener : listeners_)
        waits.push_back({listener, POLLIN, 0});
    while (true) {
        ::poll(waits.data(), waits.size(), -1);
        if (waits.front().revents != 0) return;
        for (std::size_t i = 1; i < waits.size(); ++i) {
            if (waits[i].revents == 0) continue;
            const int socket = ::accept4(waits[i].fd, nullptr, nullptr, SOCK_CLOEXEC);
            if (socket >= 0) start(socket);
        }
    }
}

void HttpsServer::start(int socket) {
    {
        const std::lock_guard lock(mutex_);
        open_.insert(socket);
    }
    log_.connected();
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    std::thread([this, socket] { serve(socket); }).detach();
}

void HttpsServer::serve(int socket) {
    // A client that leaves in the middle of an answer must not end the process of whoever embeds the sandbox.
    sigset_t pipe;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe, nullptr);

    {
        // The descriptor is duplicated, so that the registered one stays ours until it is forgotten.
        TlsConnection connection(::dup(socket), *context_);
        if (!connection.handshake()) {
            log_.handshakeFailed();
        } else {
            RequestReader reader(connection);
            try {
                bool isFirst = true;
                while (const auto request = reader.next()) {
                    if (!handler_(*request, isFirst, connection)) break;
                    isFirst = false;
                }
            } catch (const Refusal& refusal) {
                deliver(refusalAnswer(refusal.what(), refusal.status()), {}, connection);
                connection.close();
            } catch (const std::exception& failure) {
                // This thread is nobody's: what leaves it would end the process of whoever embeds the
                // sandbox.
                deliver(cannotAnswer(failure), {}, connection);
                connection.close();
            }
        }
    }
    forget(socket);
}

void HttpsServer::forget(int socket) {
    const std::lock_guard lock(mutex_);
    open_.erase(socket);
    ::close(socket);
    allGone_.notify_all();
}

} // namespace ombrivane::sandbox
