#include "DelayingProxy.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <thread>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane::bench {
namespace {

using Clock = std::chrono::steady_clock;

sockaddr_in local(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void sendAtOnce(int socket) {
    const int yes = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

struct Packet {
    Clock::time_point due;
    std::string bytes; ///< empty: the sender has ended
};

bool deliver(int to, const Packet& packet) {
    if (packet.bytes.empty()) return ::shutdown(to, SHUT_WR) == 0;
    return ::send(to, packet.bytes.data(), packet.bytes.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(packet.bytes.size());
}

} // namespace

DelayingProxy::DelayingProxy(int port, int server, std::chrono::milliseconds roundTrip) :
    listener_(::socket(AF_INET, SOCK_STREAM, 0)), server_(server), roundTrip_(roundTrip) {
    const int yes = 1;
    ::setsockopt(listener_, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    const sockaddr_in address = local(port);
    if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener_, 64) != 0)
        throw std::runtime_error("cannot listen on port " + std::to_string(port));
}

DelayingProxy::~DelayingProxy() { ::close(listener_); }

void DelayingProxy::serve() {
    for (;;) {
        const int client = ::accept(listener_, nullptr, nullptr);
        if (client >= 0) std::thread([this, client] { join(client); }).detach();
    }
}

void DelayingProxy::join(int client) const {
    const auto connected = Clock::now() + roundTrip_;
    const int upstream = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = local(server_);
    if (::connect(upstream, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        sendAtOnce(client);
        sendAtOnce(upstream);
        std::thread there([this, client, upstream, connected] { pump(client, upstream, connected); });
        pump(upstream, client, Clock::now());
        there.join();
    }
    ::close(upstream);
    ::close(client);
}

void DelayingProxy::pump(int from, int to, Time noSooner) const {
    std::deque<Packet> onTheWay;
    std::array<char, 65536> buffer{};
    for (bool ended = false; !ended || !onTheWay.empty();) {
        const auto now = Clock::now();
        if (!onTheWay.empty() && onTheWay.front().due <= now) {
            const bool arrived = deliver(to, onTheWay.front());
            onTheWay.pop_front();
            if (!arrived) return;
            continue;
        }
        const auto wait = onTheWay.empty()
                              ? std::chrono::milliseconds(-1)
                              : std::chrono::ceil<std::chrono::milliseconds>(onTheWay.front().due - now);
        pollfd readable{ended ? -1 : from, POLLIN, 0};
        if (::poll(&readable, 1, static_cast<int>(wait.count())) <= 0) continue;
        const auto count = ::recv(from, buffer.data(), buffer.size(), 0);
        ended = count <= 0;
        onTheWay.push_back({std::max(Clock::now(), noSooner) + roundTrip_ / 2,
                            std::string(buffer.data(), ended ? 0 : static_cast<std::size_t>(count))});
    }
}

} // namespace ombrivane::bench
