#include "network/TlsServer.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fstream>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane::network {
namespace {

std::string nextFile() {
    static std::atomic<int> number = 0;
    return testing::TempDir() + "authority-" + std::to_string(::getpid()) + "-" + std::to_string(number++) +
           ".pem";
}

} // namespace

TlsServer::TlsServer(Talk talk, const Prepare& prepare) : talk_(std::move(talk)), caFile_(nextFile()) {
    const auto identity = sandbox::makeServerIdentity(sandbox::CertificateKind::Good);
    std::ofstream(caFile_) << identity.authorityPem;
    context_.reset(SSL_CTX_new(TLS_server_method()));
    SSL_CTX_use_certificate(context_.get(), identity.certificate.get());
    SSL_CTX_use_PrivateKey(context_.get(), identity.key.get());
    if (prepare) prepare(context_.get());

    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener_, 128) != 0)
        throw std::runtime_error("cannot listen");
    acceptor_ = std::thread([this] { accept(); });
}

TlsServer::~TlsServer() {
    ::shutdown(listener_, SHUT_RDWR);
    acceptor_.join();
    for (const int socket : sockets_)
        ::shutdown(socket, SHUT_RDWR);
    for (auto& thread : threads_)
        thread.join();
    for (const int socket : sockets_)
        ::close(socket);
    ::close(listener_);
    ::unlink(caFile_.c_str());
}

std::string TlsServer::url(const std::string& path) const {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    return "https://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + path;
}

void TlsServer::accept() {
    for (int socket = 0; (socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        ++connections_;
        sockets_.push_back(socket);
        threads_.emplace_back([this, socket] { serve(socket); });
    }
}

void TlsServer::serve(int socket) {
    // A client that leaves in the middle of an answer must not end the tests.
    sigset_t pipe;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
    {
        sandbox::TlsConnection connection(::dup(socket), *context_);
        if (connection.handshake()) {
            talk_(connection);
            connection.close();
        }
    }
    ::shutdown(socket, SHUT_RDWR);
}

void saysNothing(sandbox::TlsConnection& connection) {
    std::array<char, 4096> buffer{};
    while (connection.read(buffer.data(), buffer.size()) > 0) {
    }
}

std::optional<std::string> readRequest(sandbox::TlsConnection& connection, std::string bytes) {
    constexpr std::string_view length = "Content-Length: ";
    std::array<char, 65536> buffer{};
    for (;;) {
        if (const auto end = bytes.find("\r\n\r\n"); end != std::string::npos) {
            const auto at = bytes.find(length);
            const std::size_t body = at < end ? std::stoul(bytes.substr(at + length.size())) : 0;
            if (bytes.size() >= end + 4 + body) return bytes;
        }
        const std::size_t count = connection.read(buffer.data(), buffer.size());
        if (count == 0) return std::nullopt;
        bytes.append(buffer.data(), count);
    }
}

} // namespace ombrivane::network
