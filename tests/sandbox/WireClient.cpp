#include "tests/sandbox/WireClient.h"

#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <array>
#include <cerrno>
#include <memory>
#include <stdexcept>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane::sandbox {

namespace {

using Clock = std::chrono::steady_clock;

class Socket {
public:
    Socket(const std::string& address, std::chrono::milliseconds patience) {
        sockaddr_in server{};
        server.sin_family = AF_INET;
        server.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        server.sin_port =
            htons(static_cast<std::uint16_t>(std::stoi(address.substr(address.rfind(':') + 1))));
        const timeval time{patience.count() / 1000, patience.count() % 1000 * 1000};
        ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &time, sizeof time);
        if (::connect(descriptor, reinterpret_cast<const sockaddr*>(&server), sizeof server) != 0)
            throw std::runtime_error("cannot connect");
    }
    ~Socket() { ::close(descriptor); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
};

using Context = std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)>;
using Tls = std::unique_ptr<SSL, decltype(&SSL_free)>;

std::string requestText(const WireRequest& request, bool isLast) {
    std::string text = request.method + " " + request.target + " HTTP/1.1\r\nHost: localhost\r\n";
    if (isLast) text += "Connection: close\r\n";
    for (const std::string& header : request.headers)
        text.append(header).append("\r\n");
    text.append("Content-Length: ").append(std::to_string(request.body.size())).append("\r\n\r\n");
    return text.append(request.body);
}

WireEnd endOf(int failure) {
    if (errno == EAGAIN || errno == EWOULDBLOCK || failure == SSL_ERROR_WANT_READ) return WireEnd::StillOpen;
    return errno == ECONNRESET ? WireEnd::Reset : WireEnd::InOrder;
}

} // namespace

int WireAnswer::status() const {
    return bytes.compare(0, 9, "HTTP/1.1 ") == 0 && bytes.size() > 12 ? std::stoi(bytes.substr(9, 3)) : 0;
}

std::string WireAnswer::header(const std::string& name) const {
    const std::string start = "\r\n" + name + ": ";
    const std::size_t at = bytes.find(start);
    if (at == std::string::npos || at > bytes.find("\r\n\r\n")) return {};
    return bytes.substr(at + start.size(), bytes.find("\r\n", at + 2) - at - start.size());
}

std::string WireAnswer::body() const {
    const std::size_t at = bytes.find("\r\n\r\n");
    return at == std::string::npos ? "" : bytes.substr(at + 4);
}

WireAnswer exchange(const std::string& address, const std::filesystem::path& caFile,
                    const WireRequest& request, std::chrono::milliseconds patience, std::size_t limit) {
    const Socket socket(address, patience);
    const Context context(SSL_CTX_new(TLS_client_method()), &SSL_CTX_free);
    SSL_CTX_load_verify_file(context.get(), caFile.c_str());
    SSL_CTX_set_verify(context.get(), SSL_VERIFY_PEER, nullptr);
    const Tls tls(SSL_new(context.get()), &SSL_free);
    SSL_set1_host(tls.get(), "localhost");
    SSL_set_fd(tls.get(), socket.descriptor);

    WireAnswer answer;
    if (SSL_connect(tls.get()) != 1) {
        answer.handshakeFault = X509_verify_cert_error_string(SSL_get_verify_result(tls.get()));
        return answer;
    }
    std::string text;
    for (int left = request.repeats; left > 0; --left)
        text += requestText(request, left == 1);
    SSL_write(tls.get(), text.data(), static_cast<int>(text.size()));

    const auto sent = Clock::now();
    std::array<char, 16 * 1024> buffer{};
    while (answer.bytes.size() < limit) {
        ERR_clear_error();
        errno = 0;
        const int count = SSL_read(tls.get(), buffer.data(), static_cast<int>(buffer.size()));
        if (answer.bytes.empty())
            answer.firstByte = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - sent);
        if (count <= 0) {
            answer.end = endOf(SSL_get_error(tls.get(), count));
            return answer;
        }
        answer.bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    answer.end = WireEnd::StillOpen;
    return answer;
}

} // namespace ombrivane::sandbox
