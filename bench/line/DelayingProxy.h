#pragma once

#include <chrono>

namespace ombrivane::bench {

/// Passes TCP connections of this machine on as a line would whose bytes take their time. The kernel answers
/// the client's first packet at once; what that exchange would have taken is added to the first bytes that a
/// client sends sooner.
class DelayingProxy {
public:
    /// Listens on 127.0.0.1. @param port its own @param server the port that it passes on to
    /// @param roundTrip of one byte there and one back
    /// @throws std::runtime_error when it cannot listen
    DelayingProxy(int port, int server, std::chrono::milliseconds roundTrip);
    DelayingProxy(const DelayingProxy&) = delete;
    DelayingProxy& operator=(const DelayingProxy&) = delete;
    ~DelayingProxy();

    /// Passes on until the process ends.
    [[noreturn]] void serve();

private:
    using Time = std::chrono::steady_clock::time_point;

    void join(int client) const;
    /// Passes on in one direction until its sender ends. @param noSooner when the first bytes may leave
    void pump(int from, int to, Time noSooner) const;

    int listener_ = -1;
    int server_;
    std::chrono::milliseconds roundTrip_;
};

} // namespace ombrivane::bench
