// One HTTPS exchange seen from the client's side of the wire, down to how the connection ends.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

enum class WireEnd { InOrder, Reset, StillOpen };

struct WireAnswer {
    std::string handshakeFault; ///< empty when the certificate was accepted
    std::string bytes;          ///< all that came
    WireEnd end = WireEnd::InOrder;
    std::chrono::milliseconds firstByte{0};

    [[nodiscard]] int status() const;
    [[nodiscard]] std::string header(const std::string& name) const;
    [[nodiscard]] std::string body() const;
};

struct WireRequest {
    std::string method = "GET";
    std::string target{};
    std::vector<std::string> headers{};
    std::string body{};
    int repeats = 1; ///< how often it is sent on the one connection
};

/// Connects to "https://localhost:PORT", checks the certificate against the file and the name, sends the
/// request, and reads to the end, for at most `patience` between two pieces and at most `limit` bytes.
WireAnswer exchange(const std::string& address, const std::filesystem::path& caFile,
                    const WireRequest& request, std::chrono::milliseconds patience = std::chrono::seconds(10),
                    std::size_t limit = 64 * 1024 * 1024);

} // namespace ombrivane::sandbox
