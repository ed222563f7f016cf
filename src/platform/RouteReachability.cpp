#include "platform/RouteReachability.h"

#include "platform/Socket.h"

#include <array>
#include <string_view>

#if defined(_WIN32)
#include <ws2tcpip.h>
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace ombrivane {
namespace {

using Flags = std::optional<std::uint32_t>;

template <class Address> Flags routeTo(const Address& target, int family) {
    const Socket handle = newSocket(family, SOCK_DGRAM, 0);
    if (handle == noSocket) return std::nullopt;
    // Connecting a datagram socket chooses the route and sends nothing.
    const bool routed = connect(handle, reinterpret_cast<const sockaddr*>(&target), sizeof target) == 0;
    closeSocket(handle);
    return routed ? reachableFlag : 0U;
}

/// Whether there is a route to `text`; nothing when that is no address, or none of a family that the system
/// knows.
Flags routeTo(const std::string& text) {
    constexpr std::uint16_t port = 443;
    sockaddr_in v4{};
    v4.sin_family = AF_INET;
    v4.sin_port = htons(port);
    if (inet_pton(AF_INET, text.c_str(), &v4.sin_addr) == 1) return routeTo(v4, AF_INET);
    sockaddr_in6 v6{};
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(port);
    if (inet_pton(AF_INET6, text.c_str(), &v6.sin6_addr) == 1) return routeTo(v6, AF_INET6);
    return std::nullopt;
}

using Pair = std::array<const char*, 2>;
/// Addresses for documentation (RFC 5737, RFC 3849): they stand for the internet and are nobody's.
constexpr Pair internet{"192.0.2.1", "2001:db8::1"};
constexpr Pair thisMachine{"127.0.0.1", "::1"};

bool isThisMachine(std::string_view host) { return host == "localhost" || host.ends_with(".localhost"); }

Flags routeToEither(const Pair& addresses) {
    Flags answer;
    for (const char* address : addresses) {
        const Flags flags = routeTo(address);
        if (flags) answer = answer.value_or(0U) | *flags;
    }
    return answer;
}

} // namespace

std::optional<std::uint32_t> RouteReachability::flags(const std::string& host) {
    if (!address_.empty()) return routeTo(address_);
    if (const Flags own = routeTo(host)) return own;
    return routeToEither(isThisMachine(host) ? thisMachine : internet);
}

} // namespace ombrivane
