#include "platform/RouteReachability.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane {
namespace {

// Systems that lack the flag start no programs from an application.
#ifdef SOCK_CLOEXEC
constexpr int socketKind = SOCK_DGRAM | SOCK_CLOEXEC;
#else
constexpr int socketKind = SOCK_DGRAM;
#endif

} // namespace

std::optional<std::uint32_t> RouteReachability::flags() {
    sockaddr_in target{};
    target.sin_family = AF_INET;
    target.sin_port = htons(443);
    if (inet_pton(AF_INET, address_.c_str(), &target.sin_addr) != 1) return std::nullopt;
    const int handle = socket(AF_INET, socketKind, 0);
    if (handle < 0) return std::nullopt;
    // Connecting a datagram socket chooses the route and sends nothing.
    const bool routed = connect(handle, reinterpret_cast<const sockaddr*>(&target), sizeof target) == 0;
    close(handle);
    return routed ? reachableFlag : 0U;
}

} // namespace ombrivane
