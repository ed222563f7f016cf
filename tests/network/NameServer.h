#pragma once

namespace ombrivane::network {

/// A name server that says nothing, for as long as it lives: whoever asks it for `name` waits, in this
/// process alone. Its end sends everybody away.
class SilentNameServer {
public:
    static constexpr const char* name = "silent.example";

    SilentNameServer();
    SilentNameServer(const SilentNameServer&) = delete;
    SilentNameServer& operator=(const SilentNameServer&) = delete;
    ~SilentNameServer();

    /// Waits until `count` threads wait for an answer; tells whether they do.
    static bool isAskedBy(int count);
};

} // namespace ombrivane::network
