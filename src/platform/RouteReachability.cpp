#include "platform/RouteReachability.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ombrivane {

std::optional<std::uint32_t> RouteReachability::flags() {
    sockaddr_in target{};
    target.sin_family = AF_INET;
    target.sin_port = htons(443);
    if (inet_pton(AF_INET, address_.c_str(), &target.sin_addr) != 1) return std::nullopt;
    const int handle = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (handle < 0) return std::nullopt;
    // Connecting a datagram socket chooses the route and sends nothing.
    const bool routed = connect(handle, reinterpret_cast<const sockaddr*>(&target), sizeof target) == 0;
    close(handle);
    return routed ? reachableFlag : 0U;
}

} // namespace ombrivane
